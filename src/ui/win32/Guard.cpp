#include "ui/win32/Guard.h"

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

// A modal loop of the system that lies in between ends by the quit message.
void Guard::end() {
  ended_ = true;
  PostQuitMessage(0);
}

void Guard::tell(const char* failure) {
  MessageBoxA(GetActiveWindow(), failure, "Zubrane", MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace zub
