#include "ui/win32/Fonts.h"

#include <cmath>

namespace zub {
namespace {

HFONT create(std::string_view name, int height, bool bold) {
  return CreateFontA(-height, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                     OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS,
                     std::string(name).c_str());
}

// For a font that it lacks, the system gives another.
bool isWhatWasAsked(HFONT font, std::string_view name) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  char face[LF_FACESIZE] = "";
  GetTextFaceA(screen, sizeof face, face);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  return lstrcmpiA(face, std::string(name).c_str()) == 0;
}

// A bare Windows has no narrow letters. Those that stand in for them are as narrow, where they are drawn well in
// that height; the last is wider, which the places of the texts have room for.
HFONT narrow(int height, bool bold) {
  constexpr int Any = 10000;
  constexpr struct {
    std::string_view name;
    int tallest;  // in pixels
  } Choices[] = {{"Arial Narrow", Any}, {"Small Fonts", 11}, {"Liberation Sans Narrow", Any}};
  for (const auto& [name, tallest] : Choices) {
    if (height > tallest) continue;
    const HFONT font = create(name, height, bold);
    if (isWhatWasAsked(font, name)) return font;
    DeleteObject(font);
  }
  return create("Arial", height, bold);
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
  if (font == nullptr) font = name == "Arial Narrow" ? narrow(height, bold) : create(name, height, bold);
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
