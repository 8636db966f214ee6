// The bare check box in a row of the icon list. It paints nothing but its box: the ground is its owner's.
#pragma once

#include "ui/controls/Control.h"

namespace zub::controls {

class SimpleCheck : public Control {
 public:
  static constexpr float Ticked = 0, Empty = -1;

  explicit SimpleCheck(const Kit& kit) : Control(kit) {}

  // Raised by the user's click only.
  Handler Click;

  // 0 shows the tick, every other value the empty box.
  float Value() const { return value_; }
  void Value(float value);

  void paint(Surface& surface) const override;

  void InitProperties(const Ambient& ambient) override;
  void ReadProperties(const PropertyBag& bag, const Ambient& ambient) override;
  void WriteProperties(PropertyBag& bag, const Ambient& ambient) const override;

 protected:
  int partAt(float x, float y) const override;
  void onClick(int part) override;
  void onPress() override { onClick(0); }

 private:
  float value_ = Empty;
};

}  // namespace zub::controls
