#include "platform/host/win32/Utf8.h"

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

std::wstring wideFromUtf8(std::string_view text) {
  std::wstring result(text.size(), L'\0');  // at most one unit for each byte
  const int size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), size);
  result.resize(static_cast<std::size_t>(length));
  return result;
}

std::string utf8FromWide(std::wstring_view text) {
  std::string result;
  setUtf8(result, text);
  return result;
}

void setUtf8(std::string& text, std::wstring_view wide) {
  text.resize(wide.size() * 3);  // the most that a unit takes
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), text.data(),
                                         static_cast<int>(text.size()), nullptr, nullptr);
  text.resize(static_cast<std::size_t>(length));
}

}  // namespace zub
