#include "ui/controls/XPCheck.h"

namespace zub::controls {

namespace {

constexpr int BoxLeft = 90, LabelLeft = 405;  // twips

}  // namespace

void XPCheck::Enabled(bool enabled) {
  Control::Enabled(enabled);
  Draw_Control();
  label_.color = enabled ? colors::Black : colors::DisabledText;
}

void XPCheck::Caption(const std::string& caption) {
  label_.text = caption;
  changeLook();
  raise(PropertyChanged, "Caption");
}

void XPCheck::Value(float value) {
  value_ = value;
  Draw_Control();
  raise(Click);
}

void XPCheck::Draw_Control() {
  if (value_ == 0)
    show(look_, Enabled() ? CheckLook::Off : CheckLook::OffDisabled);
  else if (value_ == 1)
    show(look_, Enabled() ? CheckLook::On : CheckLook::OnDisabled);
}

// Box and caption are centred on one line.
Box XPCheck::boxPlace() const {
  const int side = pixels(CheckBoxTwips);
  return {pixels(BoxLeft), (height() - side) / 2, side, side};
}

Box XPCheck::labelPlace() const {
  const Size size = label_.size(kit_.text);
  return {pixels(LabelLeft), (height() - size.height) / 2, size.width, size.height};
}

void XPCheck::paint(Surface& surface) const {
  const Box label = labelPlace();
  surface.clear(BackColor());
  paintCheckBox(surface, kit_, boxPlace(), look_);
  label_.paint(surface, kit_.text, {label.left, label.top});
}

Box XPCheck::focusPlace() const {
  const Box label = labelPlace();
  constexpr int Air = 2;
  return {label.left - Air, label.top, label.width + 2 * Air, label.height};
}

int XPCheck::partAt(float x, float y) const {
  return boxPlace().contains(x, y) || labelPlace().contains(x, y) ? 0 : Nothing;
}

void XPCheck::onPress() {
  Value(value_ == 0 ? 1.0F : 0.0F);
  Draw_Control();
}

void XPCheck::InitProperties(const Ambient& ambient) {
  Caption(ambient.Name);
  value_ = 0;
  Enabled(true);
  BackColor(colors::Page);
}

void XPCheck::ReadProperties(const PropertyBag& bag, const Ambient& ambient) {
  Caption(bag.ReadProperty("Caption", ambient.Name));
  value_ = bag.ReadProperty("Value", 0.0F);
  Enabled(bag.ReadProperty("Enabled", true));
  BackColor(bag.ReadProperty("BackColor", colors::Page));
}

void XPCheck::WriteProperties(PropertyBag& bag, const Ambient& ambient) const {
  bag.WriteProperty("Caption", label_.text, ambient.Name);
  bag.WriteProperty("Value", value_, 0.0F);
  bag.WriteProperty("Enabled", Enabled(), true);
  bag.WriteProperty("BackColor", BackColor(), colors::Page);
}

}  // namespace zub::controls
