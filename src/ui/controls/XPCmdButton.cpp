#include "ui/controls/XPCmdButton.h"

#include <cmath>

namespace zub::controls {

XPCmdButton::XPCmdButton(const Kit& kit) : Control(kit) {
  timer_.Interval = 10;
  label_.text = "XPCmdButton";
}

void XPCmdButton::Enabled(bool enabled) {
  Control::Enabled(enabled);
  raise(PropertyChanged, "Enabled");
  Redraw();
  label_.color = enabled ? colors::Black : colors::DisabledText;
}

void XPCmdButton::State(std::int32_t state) {
  state_ = state;
  raise(PropertyChanged, "State");
  Redraw();
}

void XPCmdButton::Caption(const std::string& caption) {
  label_.text = caption;
  changeLook();
  Redraw();
  raise(PropertyChanged, "Caption");
}

void XPCmdButton::Font(const FontRef& font) {
  label_.font = font;
  changeLook();
  Redraw();
  raise(PropertyChanged, "Font");
}

void XPCmdButton::Redraw() {
  if (state_ == 1)
    cellIndex_ = Marked;
  else if (state_ == 0)
    cellIndex_ = Normal;
  DrawCell(Enabled() ? cellIndex_ : Disabled);
}

void XPCmdButton::paint(Surface& surface) const {
  constexpr int CellWidth = 18, CellHeight = 21, Edge = 3;
  surface.clear(BackColor());
  surface.frame(kit_.art["button-strip"], {cell_ * CellWidth, 0, CellWidth, CellHeight}, Edge,
                {0, 0, width(), height()}, kit_.scale);
  const Corner corner = labelCorner();
  const Point at = {static_cast<int>(std::floor(corner.left + 0.5F)),
                    static_cast<int>(std::floor(corner.top + 0.5F))};
  label_.paint(surface, kit_.text, at);
}

XPCmdButton::Corner XPCmdButton::labelCorner() const {
  const Size size = label_.size(kit_.text);
  return {static_cast<float>(width() - size.width) / 2, static_cast<float>(height() - size.height) / 2};
}

bool XPCmdButton::isOnLabel(const Mouse& mouse) const {
  const Size size = label_.size(kit_.text);
  const Corner corner = labelCorner();
  return Box{0, 0, size.width, size.height}.contains(mouse.X - corner.left, mouse.Y - corner.top);
}

Mouse XPCmdButton::asReported(Mouse mouse) const {
  if (!labelIsPressed_) return mouse;
  const Corner corner = labelCorner();
  return {mouse.Button, mouse.Shift, mouse.X - corner.left, mouse.Y - corner.top};
}

void XPCmdButton::onMouseDown(int, Mouse& mouse) {
  labelIsPressed_ = isOnLabel(mouse);
  Mouse reported = asReported(mouse);
  raise(MouseDown, reported.Button, reported.Shift, reported.X, reported.Y);
  DrawCell(Pressed);
}

// Over the caption the move counts as one at the caption's corner, so that the caption stays hot.
void XPCmdButton::onMouseMove(int, Mouse& mouse) {
  if (isPressed() ? labelIsPressed_ : isOnLabel(mouse)) {
    const Corner corner = labelCorner();
    mouse.X = corner.left;
    mouse.Y = corner.top;
  }
  timer_.Enabled = true;
  if (!holds(mouse.X, mouse.Y)) return;
  raise(MouseMove, mouse.Button, mouse.Shift, mouse.X, mouse.Y);
  DrawCell(mouse.Button == LeftButton ? Pressed : Hot);
}

void XPCmdButton::onMouseUp(int, Mouse& mouse) {
  Mouse reported = asReported(mouse);
  labelIsPressed_ = false;
  raise(MouseUp, reported.Button, reported.Shift, reported.X, reported.Y);
  Redraw();
}

void XPCmdButton::onTimer() {
  if (!pointerHasLeft()) return;
  timer_.Enabled = false;
  raise(MouseOut);
  Redraw();
}

void XPCmdButton::InitProperties(const Ambient& ambient) {
  Enabled(true);
  Caption(ambient.Name);
  Font(ambient.font);
}

void XPCmdButton::ReadProperties(const PropertyBag& bag, const Ambient& ambient) {
  Enabled(bag.ReadProperty("Enabled", true));
  Caption(bag.ReadProperty("Caption", ambient.Name));
  Font(bag.ReadProperty("Font", ambient.font));
}

void XPCmdButton::WriteProperties(PropertyBag& bag, const Ambient& ambient) const {
  bag.WriteProperty("State", state_, std::int32_t{0});
  bag.WriteProperty("Enabled", Enabled(), true);
  bag.WriteProperty("Caption", label_.text, ambient.Name);
  bag.WriteProperty("Font", label_.font, ambient.font);
}

}  // namespace zub::controls
