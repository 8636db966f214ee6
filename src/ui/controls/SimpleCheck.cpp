#include "ui/controls/SimpleCheck.h"

#include <cmath>

#include "ui/controls/CheckBox.h"

namespace zub::controls {

namespace {

constexpr Box PicCheck = px(0, 2, 13, 13);  // twips

}  // namespace

void SimpleCheck::Value(float value) {
  value_ = value;
  changeLook();
  raise(PropertyChanged, "Value");
}

void SimpleCheck::paint(Surface& surface) const {
  paintCheckBox(surface, kit_, pixels(PicCheck), value_ == Ticked ? CheckLook::On : CheckLook::Off);
}

int SimpleCheck::partAt(float x, float y) const {
  return pixels(PicCheck).contains(x, y) ? 0 : Nothing;
}

// The bitwise complement of the whole number: 0 and -1 turn into each other.
void SimpleCheck::onClick(int) {
  Value(static_cast<float>(~std::lrint(value_)));
  raise(Click);
}

void SimpleCheck::InitProperties(const Ambient&) {
  Value(Empty);
}

void SimpleCheck::ReadProperties(const PropertyBag& bag, const Ambient&) {
  Value(bag.ReadProperty("Value", float{Empty}));
}

void SimpleCheck::WriteProperties(PropertyBag& bag, const Ambient&) const {
  bag.WriteProperty("Value", value_, float{Empty});
}

}  // namespace zub::controls
