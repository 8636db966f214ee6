#include "app/console/ConsolePc.h"

namespace zub {

std::unique_ptr<ConsolePc> openThisPc(EventLoop&, Messages&) {
  return nullptr;
}

}  // namespace zub
