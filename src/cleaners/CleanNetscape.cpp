#include "cleaners/CleanNetscape.h"

#include "cleaners/frmNSCookieKeep.h"
#include "engine/Engine.h"

namespace zub {

void CleanNetscape(Engine& engine, frmNSCookieKeep& cookieKeep) {
  clean(engine, Task::Netscape, [&] { cookieKeep.CleanNS6(); });
}

}  // namespace zub
