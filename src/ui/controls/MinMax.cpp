#include "ui/controls/MinMax.h"

namespace zub::controls {

namespace {

constexpr Box Buttons[] = {titlePx(0, 0, 21, 25), titlePx(20, 0, 21, 25)};  // twips
constexpr std::string_view ToolTips[] = {"Minimise to tray", "Close"};
constexpr std::string_view HotPictures[] = {"minmax-minimise-hot", "minmax-close-hot"};
constexpr std::string_view PressedPictures[] = {"minmax-minimise-pressed", "minmax-close-pressed"};

}  // namespace

MinMax::MinMax(const Kit& kit) : Control(kit, {38, 20}) {
  timer_.Interval = 1;
}

std::string_view MinMax::toolTip(Point at) const {
  const int button = partAt(static_cast<float>(at.x), static_cast<float>(at.y));
  return button == Nothing ? std::string_view() : ToolTips[button];
}

void MinMax::paint(Surface& surface) const {
  surface.clear(BackColor());
  draw(surface, "minmax-background", {});
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    if (shown_[i] == Empty) continue;
    const std::string_view name = shown_[i] == Hot ? HotPictures[i] : PressedPictures[i];
    const Box place = buttonPlace(i);
    draw(surface, name, {place.left, place.top});
  }
}

Box MinMax::buttonPlace(std::size_t button) const {
  return kit_.scale.pixels(Buttons[button], TitleTwipsPerPixel);
}

int MinMax::partAt(float x, float y) const {
  if (buttonPlace(1).contains(x, y)) return 1;
  return buttonPlace(0).contains(x, y) ? 0 : Nothing;
}

void MinMax::onMouseDown(int part, Mouse&) {
  Looks looks = shown_;
  looks[static_cast<std::size_t>(part)] = Pressed;
  show(shown_, looks);
  timer_.Enabled = false;
}

void MinMax::onMouseMove(int part, Mouse& mouse) {
  if (mouse.Button != 0) return;
  show(shown_, part == 0 ? Looks{Hot, Empty} : Looks{Empty, Hot});
  timer_.Enabled = true;
}

void MinMax::onMouseUp(int part, Mouse&) {
  Looks looks = shown_;
  looks[static_cast<std::size_t>(part)] = Empty;
  show(shown_, looks);
}

void MinMax::onClick(int part) {
  raise(part == 0 ? MinClicked : CloseClicked);
}

void MinMax::onTimer() {
  if (!pointerHasLeft()) return;
  show(shown_, Looks{Empty, Empty});
  timer_.Enabled = false;
}

}  // namespace zub::controls
