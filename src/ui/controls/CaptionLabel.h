// A caption: text with an access key, as large as its letters.
#pragma once

#include <string>
#include <string_view>

#include "ui/controls/TextPainter.h"

namespace zub::controls {

struct AccessText {
  std::string text;     // as shown
  int underlined = -1;  // place of the access key's letter
};

// "&Yes" is "Yes" with the key Y; "&&" is an ampersand; the first marked letter is the key. An ampersand at
// the end is not shown.
AccessText withoutAmpersands(std::string_view caption);

class CaptionLabel {
 public:
  std::string text;  // with its ampersands
  FontRef font = std::make_shared<Font>();
  Color color = colors::Black;

  Size size(TextPainter& painter) const;
  void paint(Surface& surface, TextPainter& painter, Point at) const;
};

}  // namespace zub::controls
