// The seam to whatever draws letters.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "state/Controls.h"
#include "ui/controls/Surface.h"

namespace zub::controls {

struct Font {
  std::string Name = "Arial";
  float Size = 8.25F;  // points
  bool Bold = false;
};

// A font is shared by all that hold it.
using FontRef = std::shared_ptr<Font>;

class TextPainter {
 public:
  virtual ~TextPainter() = default;

  // The size of one line, in pixels. The empty text is 0 wide and one line high.
  virtual Size measure(std::string_view text, const Font& font) = 0;
  // Draws one line with its upper left corner at a place of the surface, over what is there, and underlines
  // the letter `underlined` (none at -1). It stays inside the surface's clip.
  virtual void draw(Surface& surface, Point at, std::string_view text, int underlined, const Font& font,
                    Color color) = 0;
};

}  // namespace zub::controls
