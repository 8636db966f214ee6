#include "ui/controls/ZUBCloseButton.h"

namespace zub::controls {

namespace {

constexpr Box PicClose = {15, 15, 360, 240};  // twips
constexpr std::string_view ImgActions[] = {"close-rest", "close-pressed", "close-hot"};

}  // namespace

ZUBCloseButton::ZUBCloseButton(const Kit& kit) : Control(kit, {29, 23}) {
  timer_ = {.Interval = 10, .Enabled = true};
}

void ZUBCloseButton::paint(Surface& surface) const {
  surface.clear(BackColor());
  const Box place = picturePlace();
  draw(surface, ImgActions[shown_], {place.left, place.top});
}

Box ZUBCloseButton::picturePlace() const {
  return kit_.scale.pixels(PicClose, TitleTwipsPerPixel);
}

int ZUBCloseButton::partAt(float x, float y) const {
  return picturePlace().contains(x, y) ? 0 : Nothing;
}

void ZUBCloseButton::onMouseDown(int, Mouse&) {
  show(shown_, Pressed);
}

// The place is counted from the picture's corner, but held against the size of the whole control.
void ZUBCloseButton::onMouseMove(int, Mouse& mouse) {
  timer_.Enabled = true;
  const Box place = picturePlace();
  if (holds(mouse.X - static_cast<float>(place.left), mouse.Y - static_cast<float>(place.top)))
    show(shown_, mouse.Button == LeftButton ? Pressed : Hot);
}

void ZUBCloseButton::onMouseUp(int, Mouse&) {
  show(shown_, Rest);
}

void ZUBCloseButton::onTimer() {
  if (!pointerHasLeft()) return;
  timer_.Enabled = false;
  show(shown_, Rest);
}

}  // namespace zub::controls
