// Draws the kit's letters with the system's fonts.
#pragma once

#include "ui/controls/TextPainter.h"
#include "ui/win32/Fonts.h"

namespace zub {

class GdiTextPainter : public controls::TextPainter {
 public:
  // `canvas` is the device context of the surfaces that are painted on.
  GdiTextPainter(Fonts& fonts, HDC canvas) : fonts_(fonts), canvas_(canvas) {}

  controls::Size measure(std::string_view text, const controls::Font& font) override;
  void draw(controls::Surface& surface, controls::Point at, std::string_view text, int underlined,
            const controls::Font& font, Color color) override;

 private:
  HFONT native(const controls::Font& font) { return fonts_.font(font.Name, font.Size, font.Bold); }

  Fonts& fonts_;
  HDC canvas_;
};

}  // namespace zub
