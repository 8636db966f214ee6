#include "platform/win32/Win32CodePage.h"

#include "platform/win32/WindowsHeader.h"

namespace zub {

std::string Win32CodePage::upper(std::string_view text) const {
  std::string result(text);
  CharUpperBuffA(result.data(), static_cast<DWORD>(result.size()));
  return result;
}

}  // namespace zub
