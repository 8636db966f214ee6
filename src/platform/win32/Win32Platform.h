// The PC that the program runs on: owns every service but the window system's.
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "platform/win32/OwnerWindow.h"

namespace zub {

class Win32Platform {
 public:
  // The event loop and the tray belong to the caller and outlive this object.
  Win32Platform(EventLoop& events, Tray& tray, const OwnerWindow& owner);
  Win32Platform(const Win32Platform&) = delete;
  Win32Platform& operator=(const Win32Platform&) = delete;
  ~Win32Platform();

  Platform& platform();

 private:
  struct Services;
  std::unique_ptr<Services> services_;
};

}  // namespace zub
