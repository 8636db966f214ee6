#include "ui/controls/Control.h"

namespace zub::controls {

void Control::resize(int width, int height) {
  size_ = {width, height};
  changeLook();
  onResize();
}

void Control::Enabled(bool enabled) {
  enabled_ = enabled;
  changeLook();
}

void Control::BackColor(Color color) {
  backColor_ = color;
  changeLook();
  raise(PropertyChanged, "BackColor");
}

void Control::mouseDown(Mouse mouse) {
  if (!enabled_) return;
  if (!isPressed()) pressed_ = partAt(mouse.X, mouse.Y);
  if (isPressed()) onMouseDown(pressed_, mouse);
}

void Control::mouseMove(Mouse mouse) {
  if (!enabled_) return;
  if (mouse.Button == 0) pressed_ = Nothing;
  const int part = isPressed() ? pressed_ : partAt(mouse.X, mouse.Y);
  if (part != Nothing) onMouseMove(part, mouse);
}

void Control::mouseUp(Mouse mouse) {
  const int pressed = std::exchange(pressed_, Nothing);
  if (!enabled_) return;
  const int here = partAt(mouse.X, mouse.Y);
  const int part = pressed != Nothing ? pressed : here;
  if (part == Nothing) return;
  const bool clicked =
      pressed != Nothing && here == pressed && mouse.Button == LeftButton && holds(mouse.X, mouse.Y);
  onMouseUp(part, mouse);
  if (clicked) onClick(part);
}

bool Control::holds(float x, float y) const {
  return x >= 0 && y >= 0 && x <= static_cast<float>(width()) && y <= static_cast<float>(height());
}

bool Control::pointerHasLeft() const {
  const Point pointer = kit_.pointer.pointerOver(*this);
  return !holds(static_cast<float>(pointer.x), static_cast<float>(pointer.y));
}

}  // namespace zub::controls
