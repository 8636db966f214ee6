#include "app/console/ConsolePc.h"

namespace zub {

std::vector<std::string> commandWords(int count, char** words) {
  return {words + 1, words + count};
}

std::unique_ptr<ConsolePc> openThisPc(EventLoop&, Messages&) {
  return nullptr;
}

}  // namespace zub
