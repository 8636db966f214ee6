#include "app/console/AskFirst.h"
#include "app/console/ConsolePc.h"

namespace zub {

std::unique_ptr<ConsolePc> openThisPc(EventLoop&, Messages&) {
  return nullptr;
}

bool washWanted(CommandContext&, const WashChoice&) {
  return true;
}

}  // namespace zub
