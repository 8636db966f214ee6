#include "ui/win32/Ui.h"

namespace zub {

controls::Point ControlPlaces::pointerOver(const controls::Control& control) {
  const Place& place = places_[&control];
  POINT pointer{};
  GetCursorPos(&pointer);
  ScreenToClient(place.window, &pointer);
  return {MulDiv(static_cast<int>(pointer.x), 96, place.dpi),
          MulDiv(static_cast<int>(pointer.y), 96, place.dpi)};
}

HICON Ui::icon() const {
  return LoadIconA(instance, MAKEINTRESOURCEA(ProgramIconId));
}

}  // namespace zub
