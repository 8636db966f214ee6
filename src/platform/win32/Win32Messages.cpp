#include "platform/win32/Win32Messages.h"

#include <vector>

#include "base/RuntimeError.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {
namespace {

// Disables the windows of this thread, for as long as it lives, but the one that the box itself disables.
class OthersDisabled {
 public:
  explicit OthersDisabled(HWND owner) : owner_(owner) {
    EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
  }
  OthersDisabled(const OthersDisabled&) = delete;
  OthersDisabled& operator=(const OthersDisabled&) = delete;
  ~OthersDisabled() {
    for (const HWND window : disabled_) EnableWindow(window, TRUE);
  }

 private:
  static BOOL CALLBACK disable(HWND window, LPARAM self) {
    auto& others = *reinterpret_cast<OthersDisabled*>(self);
    if (window == others.owner_ || IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0) return TRUE;
    others.disabled_.push_back(window);
    EnableWindow(window, FALSE);
    return TRUE;
  }

  HWND owner_;
  std::vector<HWND> disabled_;
};

// Whether the program was ended while a loop of the system ran, which leaves the quit message to its caller.
bool programEnds() {
  MSG quit;
  return PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != 0;
}

}  // namespace

void Win32Messages::show(std::string_view prompt, int style, std::string_view title) {
  const auto owner = static_cast<HWND>(owner_());
  {
    const OthersDisabled others(owner);
    MessageBoxA(owner, std::string(prompt).c_str(), std::string(title).c_str(),
                static_cast<UINT>(style) | MB_SETFOREGROUND);
  }
  if (programEnds()) throw EndOfProcess{};
}

}  // namespace zub
