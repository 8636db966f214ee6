#include "ui/controls/MinMax.h"

namespace zub::controls {

namespace {

constexpr Box Buttons[] = {pixels(Box{0, 0, 252, 300}, TitleTwipsPerPixel),
                           pixels(Box{240, 0, 252, 300}, TitleTwipsPerPixel)};
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
  surface.draw(kit_.art["minmax-background"], {});
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    if (shown_[i] == Empty) continue;
    const std::string_view name = shown_[i] == Hot ? HotPictures[i] : PressedPictures[i];
    surface.draw(kit_.art[name], {Buttons[i].left, Buttons[i].top});
  }
}

int MinMax::partAt(float x, float y) const {
  if (Buttons[1].contains(x, y)) return 1;
  return Buttons[0].contains(x, y) ? 0 : Nothing;
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
