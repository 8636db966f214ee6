// A small fixed font in place of the system's letters, the same on every system. It has the letters that the
// controls under test and the sheet need. One size; 13 pixels a line.
#pragma once

#include "ui/controls/TextPainter.h"

namespace zub::controls {

class BitmapFont : public TextPainter {
 public:
  static constexpr int LineHeight = 13;

  Size measure(std::string_view text, const Font& font) override;
  void draw(Surface& surface, Point at, std::string_view text, int underlined, const Font& font,
            Color color) override;
};

}  // namespace zub::controls
