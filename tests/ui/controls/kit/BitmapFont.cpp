#include "kit/BitmapFont.h"

namespace zub::controls {

namespace {

constexpr std::string_view Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz.,:-?&0123456789";
constexpr int FirstRow = 3, UnderlineRow = 11;
constexpr int Gap = 1, BlankWidth = 3;

}  // namespace

// Its place in the strip; a blank of no height for what the strip lacks.
Box BitmapFont::glyphOf(char letter) const {
  const auto isOver = [this](int x) { return x < strip_.width() && strip_.pixel(x, 0) != 0; };
  int left = 0;
  for (const char each : Letters) {
    int right = left;
    while (isOver(right)) ++right;
    if (each == letter) return {left, 1, right - left, strip_.height() - 1};
    left = right + 1;
  }
  return {0, 0, BlankWidth, 0};
}

Size BitmapFont::measure(std::string_view text, const Font&) {
  Size size = {0, LineHeight};
  for (const char letter : text) size.width += glyphOf(letter).width + Gap;
  return size;
}

void BitmapFont::draw(Surface& surface, Point at, std::string_view text, int underlined, const Font&,
                      Color color) {
  int x = at.x;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Box glyph = glyphOf(text[i]);
    for (int row = 0; row < glyph.height; ++row)
      for (int column = 0; column < glyph.width; ++column)
        if (strip_.pixel(glyph.left + column, glyph.top + row) != 0)
          surface.fill({x + column, at.y + FirstRow + row, 1, 1}, color);
    if (static_cast<int>(i) == underlined) surface.fill({x, at.y + UnderlineRow, glyph.width, 1}, color);
    x += glyph.width + Gap;
  }
}

}  // namespace zub::controls
