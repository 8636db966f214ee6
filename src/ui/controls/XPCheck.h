// The check box with a caption.
#pragma once

#include <string>

#include "ui/controls/CaptionLabel.h"
#include "ui/controls/CheckBox.h"

namespace zub::controls {

class XPCheck : public Control {
 public:
  explicit XPCheck(const Kit& kit) : Control(kit) {}

  // Raised by every write of the value, also by the owner's own.
  Handler Click;

  using Control::Enabled;
  void Enabled(bool enabled) override;
  std::string Caption() const override { return label_.text; }
  void Caption(const std::string& caption);
  // 0 off, 1 on; any other value keeps the picture.
  float Value() const { return value_; }
  void Value(float value);
  void Draw_Control();

  void paint(Surface& surface) const override;
  Box focusPlace() const override;  // around the caption

  Described described() const override {
    return {.role = Role::CheckBox, .name = Caption(), .checkable = true, .checked = value_ != 0};
  }

  // Loading raises no Click.
  void InitProperties(const Ambient& ambient) override;
  void ReadProperties(const PropertyBag& bag, const Ambient& ambient) override;
  void WriteProperties(PropertyBag& bag, const Ambient& ambient) const override;

 protected:
  int partAt(float x, float y) const override;
  void onClick(int) override { onPress(); }
  void onPress() override;

 private:
  Box boxPlace() const;
  Box labelPlace() const;

  CaptionLabel label_;
  float value_ = 0;
  CheckLook look_ = CheckLook::Off;
};

}  // namespace zub::controls
