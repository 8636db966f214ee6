// A small fixed font in place of the system's letters, the same on every system. One size; 13 pixels a line.
#pragma once

#include "ui/controls/Art.h"
#include "ui/controls/TextPainter.h"

namespace zub {
std::span<const EmbeddedFile> letterFiles();
}

namespace zub::controls {

class BitmapFont : public TextPainter {
 public:
  static constexpr int LineHeight = 13;

  Size measure(std::string_view text, const Font& font) override;
  void draw(Surface& surface, Point at, std::string_view text, int underlined, const Font& font,
            Color color) override;

 private:
  Box glyphOf(char letter) const;

  // The letters side by side. In the first row a line over each of them tells its width.
  Bitmap strip_ = Art(letterFiles())["letters"];
};

}  // namespace zub::controls
