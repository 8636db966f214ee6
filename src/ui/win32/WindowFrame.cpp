#include "ui/win32/WindowFrame.h"

#include <algorithm>

namespace zub {
namespace {

int screenDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

SIZE WindowFrame::outerSize(int width, int height) const {
  RECT size{0, 0, width, height};
  AdjustWindowRectEx(&size, style, FALSE, extendedStyle);
  return {size.right - size.left, size.bottom - size.top};
}

WindowFrame frameOf(layout::Border border) {
  using layout::Border;
  DWORD style = WS_CLIPCHILDREN;
  style |= border == Border::Fixed || border == Border::Minimise ? DWORD{WS_OVERLAPPED} : DWORD{WS_POPUP};
  if (border != Border::None) style |= WS_CAPTION | WS_SYSMENU;
  if (border == Border::Minimise) style |= WS_MINIMIZEBOX;
  return {style, WS_EX_CONTROLPARENT | (border == Border::Dialog ? DWORD{WS_EX_DLGMODALFRAME} : 0)};
}

int fittingDpi() {
  constexpr int TwipsPerInch = 1440, Step = 12, Fewest = 48;
  const int wanted = screenDpi();
  RECT room;
  if (SystemParametersInfoA(SPI_GETWORKAREA, 0, &room, 0) == 0) return wanted;
  int dpi = wanted;
  for (const layout::Face* window : layout::faces::All) {
    const SIZE frame = frameOf(window->border).outerSize(0, 0);
    const auto width = static_cast<int>(room.right - room.left - frame.cx);
    const auto height = static_cast<int>(room.bottom - room.top - frame.cy);
    dpi = std::min({dpi, width * TwipsPerInch / window->width, height * TwipsPerInch / window->height});
  }
  return dpi == wanted ? dpi : std::max(dpi - dpi % Step, Fewest);
}

}  // namespace zub
