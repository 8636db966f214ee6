#include "ui/win32/Fonts.h"

#include <cmath>

namespace zub {
namespace {

constexpr std::string_view Narrow = "Arial Narrow", Wide = "Arial";
constexpr int NarrowOfWide = 82;  // hundredths

HFONT create(std::string_view name, int height, int width, bool bold) {
  return CreateFontA(-height, width, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                     OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS,
                     std::string(name).c_str());
}

// What the system gives for a font, which it may lack.
struct Given {
  std::string face;
  int averageWidth;
};
Given givenFor(HFONT font) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  char face[LF_FACESIZE] = "";
  GetTextFaceA(screen, sizeof face, face);
  TEXTMETRICA metrics{};
  GetTextMetricsA(screen, &metrics);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  return {face, static_cast<int>(metrics.tmAveCharWidth)};
}

// A bare Windows has no narrow letters: the common ones are drawn as narrow, for as much text to a line.
HFONT made(std::string_view name, int height, bool bold) {
  const HFONT font = create(name, height, 0, bold);
  if (name != Narrow || givenFor(font).face == Narrow) return font;
  DeleteObject(font);
  const HFONT wide = create(Wide, height, 0, bold);
  const HFONT squeezed = create(Wide, height, MulDiv(givenFor(wide).averageWidth, NarrowOfWide, 100), bold);
  DeleteObject(wide);
  return squeezed;
}

}  // namespace

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
  if (font == nullptr) font = made(name, height, bold);
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
