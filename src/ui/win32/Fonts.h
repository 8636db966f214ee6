// The fonts and brushes of the windows, made once and kept, and the scale of the screen.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "platform/host/win32/WindowsHeader.h"
#include "state/Controls.h"
#include "ui/controls/Geometry.h"
#include "ui/layout/WindowSpec.h"

namespace zub {

// A system colour becomes a plain one.
COLORREF plainColor(Color color);

class Fonts {
 public:
  // For so many pixels an inch.
  explicit Fonts(int dpi) : scale_{dpi} {}
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;
  ~Fonts();

  HFONT font(std::string_view name, float points, bool bold);
  HFONT font(const layout::TextFont& font) { return this->font(font.name, font.points, font.bold); }
  HBRUSH brush(COLORREF color);

  int pixels(int twips) const { return scale_.pixels(twips); }
  RECT pixels(const layout::Place& place) const;
  controls::Scale scale() const { return scale_; }

 private:
  controls::Scale scale_;
  std::map<std::tuple<std::string, int, bool>, HFONT> fonts_;  // by name, height in pixels, boldness
  std::map<COLORREF, HBRUSH> brushes_;
};

}  // namespace zub
