#include "ui/win32/Fonts.h"

#include <cmath>

namespace zub {
COLORREF plainColor(Color color) {
  constexpr Color SystemMark = 0x80000000;
  return (color & SystemMark) != 0 ? GetSysColor(static_cast<int>(color & 0xFF)) : color;
}

Fonts::~Fonts() {
  for (const auto& [key, font] : fonts_) DeleteObject(font);
  for (const auto& [color, brush] : brushes_) DeleteObject(brush);
}

HFONT Fonts::font(std::string_view name, float points, bool bold) {
  const int height = static_cast<int>(std::lround(points * static_cast<float>(scale_.dpi) / 72));
  HFONT& font = fonts_[{std::string(name), height, bold}];
  if (font == nullptr) {
    font = CreateFontA(-height, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS,
                       std::string(name).c_str());
  }
  return font;
}

HBRUSH Fonts::brush(COLORREF color) {
  HBRUSH& brush = brushes_[color];
  if (brush == nullptr) brush = CreateSolidBrush(color);
  return brush;
}

RECT Fonts::pixels(const layout::Place& place) const {
  return {pixels(place.left), pixels(place.top), pixels(place.right()), pixels(place.bottom())};
}

}  // namespace zub
