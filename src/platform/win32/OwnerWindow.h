// Whose window the system's own dialogs lie over.
#pragma once

#include <functional>

namespace zub {

// Answers the window's handle (HWND) at the time of the call; null where there is none yet.
using OwnerWindow = std::function<void*()>;

}  // namespace zub
