#include "engine/UserFunctions.h"

namespace zub {

void UserFunctions::ShowMessage(std::string_view prompt, int style, std::string_view title, bool isError) {
  if (!isError || options_.chkSkipMessages.Value() == 1) pc_.messages->show(prompt, style, title);
}

bool UserFunctions::IsWinNT() {
  constexpr std::uint32_t recordSize = 0;
  return pc_.restart->platformId(recordSize) == 2;
}

}  // namespace zub
