#include "platform/win32/Win32Messages.h"

#include "platform/win32/WindowsHeader.h"

namespace zub {

void Win32Messages::show(std::string_view prompt, int style, std::string_view title) {
  MessageBoxA(static_cast<HWND>(owner_()), std::string(prompt).c_str(), std::string(title).c_str(),
              static_cast<UINT>(style) | MB_SETFOREGROUND);
}

}  // namespace zub
