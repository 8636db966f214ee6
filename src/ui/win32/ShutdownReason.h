// Tells the user at the end of the Windows session why a window keeps it waiting, for as long as the object
// lives. Without a reason newer Windows takes the program for one that hangs. Before Vista there is no such
// thing, and nothing happens.
#pragma once

#include "platform/host/win32/LoadedCall.h"

namespace zub {

class ShutdownReason {
 public:
  ShutdownReason(HWND window, const wchar_t* reason) : window_(window) {
    if (const auto create = user32<BOOL(WINAPI*)(HWND, LPCWSTR)>("ShutdownBlockReasonCreate"))
      create(window_, reason);
  }
  ShutdownReason(const ShutdownReason&) = delete;
  ShutdownReason& operator=(const ShutdownReason&) = delete;
  ~ShutdownReason() {
    if (const auto destroy = user32<BOOL(WINAPI*)(HWND)>("ShutdownBlockReasonDestroy")) destroy(window_);
  }

 private:
  template <class Call>
  static Call user32(const char* name) {
    return loadedCall<Call>("user32.dll", name);
  }

  HWND window_;
};

}  // namespace zub
