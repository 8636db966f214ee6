#include "cleaners/CleanNetscape.h"

#include "cleaners/frmNSCookieKeep.h"
#include "engine/Engine.h"

namespace zub {

void CleanNetscape(Engine& engine, frmNSCookieKeep& cookieKeep) {
  CleanerFrame frame(engine, Task::Netscape);
  frame.announce();
  frame.heading();
  cookieKeep.CleanNS6();
  frame.finish();
}

}  // namespace zub
