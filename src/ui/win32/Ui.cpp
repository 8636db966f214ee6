#include "ui/win32/Ui.h"

namespace zub {

controls::Point ControlPlaces::pointerOver(const controls::Control& control) {
  POINT pointer{};
  GetCursorPos(&pointer);
  ScreenToClient(windows_[&control], &pointer);
  return {static_cast<int>(pointer.x), static_cast<int>(pointer.y)};
}

HICON Ui::icon(int side) const {
  return static_cast<HICON>(
      LoadImageA(instance, MAKEINTRESOURCEA(ProgramIconId), IMAGE_ICON, side, side, LR_SHARED));
}

HICON Ui::icon() const {
  return LoadIconA(instance, MAKEINTRESOURCEA(ProgramIconId));
}

}  // namespace zub
