#include "ui/win32/CheckImages.h"

#include "ui/controls/CheckBox.h"

namespace zub {

CheckImages::~CheckImages() {
  if (list_ != nullptr) ImageList_Destroy(list_);
}

HIMAGELIST CheckImages::list(const controls::Kit& kit, PixelCanvas& canvas) {
  if (list_ != nullptr) return list_;
  constexpr int Beside = 2, Above = 1;  // pixels of 96 an inch
  const int side = kit.scale.pixels(controls::CheckBoxTwips);
  const int beside = kit.scale.pixels(Beside, 1), above = kit.scale.pixels(Above, 1);
  const int width = side + 2 * beside, height = side + 2 * above;
  list_ = ImageList_Create(width, height, ILC_COLOR24, 2, 0);
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  for (const auto look : {controls::CheckLook::Off, controls::CheckLook::On}) {
    controls::Surface surface = canvas.surface(width, height);
    surface.clear(colors::White);
    controls::paintCheckBox(surface, kit, {beside, above, side, side}, look);
    const HBITMAP picture = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, picture);
    BitBlt(memory, 0, 0, width, height, canvas.dc(), 0, 0, SRCCOPY);
    SelectObject(memory, before);
    ImageList_Add(list_, picture, nullptr);
    DeleteObject(picture);
  }
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return list_;
}

}  // namespace zub
