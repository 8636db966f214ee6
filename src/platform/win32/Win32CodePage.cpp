#include "platform/win32/Win32CodePage.h"

#include "platform/win32/Text.h"

namespace zub {

std::string Win32CodePage::upper(std::string_view text) const {
  std::string result(text);
  CharUpperBuffA(result.data(), static_cast<DWORD>(result.size()));
  return result;
}

std::string Win32CodePage::toldPath(std::string_view path) const {
  return told(untoldWide(path));
}

}  // namespace zub
