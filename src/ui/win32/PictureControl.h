// Pictures and lines on a window, painted as the kit's controls are.
#pragma once

#include <string>

#include "ui/controls/Control.h"

namespace zub {

class PictureControl : public controls::Control {
 public:
  explicit PictureControl(const controls::Kit& kit) : Control(kit) {}

  // The name of a bitmap; the empty text for none.
  void picture(std::string_view name) { show(name_, std::string(name)); }

  void paint(controls::Surface& surface) const override {
    surface.clear(BackColor());
    draw(surface, name_, {});
  }

 private:
  std::string name_;
};

class LineControl : public controls::Control {
 public:
  LineControl(const controls::Kit& kit, Color color) : Control(kit), color_(color) {}

  void paint(controls::Surface& surface) const override { surface.clear(color_); }

 private:
  Color color_;
};

}  // namespace zub
