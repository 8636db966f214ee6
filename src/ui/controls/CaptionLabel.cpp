#include "ui/controls/CaptionLabel.h"

namespace zub::controls {

AccessText withoutAmpersands(std::string_view caption) {
  AccessText shown;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&') {
      if (++i == caption.size()) break;
      if (caption[i] != '&' && shown.underlined < 0) shown.underlined = static_cast<int>(shown.text.size());
    }
    shown.text += caption[i];
  }
  return shown;
}

Size CaptionLabel::size(TextPainter& painter) const {
  return painter.measure(withoutAmpersands(text).text, *font);
}

void CaptionLabel::paint(Surface& surface, TextPainter& painter, Point at) const {
  const AccessText shown = withoutAmpersands(text);
  painter.draw(surface, at, shown.text, shown.underlined, *font, color);
}

}  // namespace zub::controls
