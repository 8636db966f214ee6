// How wide a text stands in Arial (and in any font of its measures), so that a layout can be judged on a
// system without fonts.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "ui/layout/WindowSpec.h"

namespace zub {

// In thousandths of the font's height, from the blank to the tilde.
inline constexpr std::array<int, 95> arialWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

// In twips.
inline int textWidth(std::string_view text, const layout::TextFont& font) {
  constexpr float TwipsPerPoint = 20;
  float width = 0;
  for (const char c : text) {
    if (c != '&' && c >= ' ' && c <= '~')
      width += static_cast<float>(arialWidths[static_cast<std::size_t>(c - ' ')]);
  }
  const float narrow = font.name == "Arial Narrow" ? 0.82F : 1.0F;
  const float bold = font.bold ? 1.08F : 1.0F;
  return static_cast<int>(width / 1000 * font.points * TwipsPerPoint * narrow * bold);
}

inline int lineHeight(const layout::TextFont& font) {
  constexpr float Spacing = 1.2F, TwipsPerPoint = 20;
  return static_cast<int>(font.points * TwipsPerPoint * Spacing);
}

// The lines that a text takes, broken at blanks.
inline int linesOf(std::string_view text, int width, const layout::TextFont& font) {
  int lines = 1, used = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size() - 1) + 1;
    const int word = textWidth(text.substr(0, end), font);
    if (used != 0 && used + word > width) {
      ++lines;
      used = 0;
    }
    used += word;
    text.remove_prefix(end);
  }
  return lines;
}

}  // namespace zub
