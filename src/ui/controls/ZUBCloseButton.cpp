#include "ui/controls/ZUBCloseButton.h"

namespace zub::controls {

namespace {

constexpr Box PicClose = pixels(Box{15, 15, 360, 240}, TitleTwipsPerPixel);
constexpr std::string_view ImgActions[] = {"close-rest", "close-pressed", "close-hot"};

}  // namespace

ZUBCloseButton::ZUBCloseButton(const Kit& kit) : Control(kit, {29, 23}) {
  timer_ = {.Interval = 10, .Enabled = true};
}

void ZUBCloseButton::paint(Surface& surface) const {
  surface.clear(BackColor());
  surface.draw(kit_.art[ImgActions[shown_]], {PicClose.left, PicClose.top});
}

int ZUBCloseButton::partAt(float x, float y) const {
  return PicClose.contains(x, y) ? 0 : Nothing;
}

void ZUBCloseButton::onMouseDown(int, Mouse&) {
  show(shown_, Pressed);
}

// The place is counted from the picture's corner, but held against the size of the whole control.
void ZUBCloseButton::onMouseMove(int, Mouse& mouse) {
  timer_.Enabled = true;
  if (holds(mouse.X - static_cast<float>(PicClose.left), mouse.Y - static_cast<float>(PicClose.top)))
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
