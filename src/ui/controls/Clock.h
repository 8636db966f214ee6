// The display of a time in digit pictures.
#pragma once

#include <array>
#include <string_view>

#include "ui/controls/Control.h"

namespace zub::controls {

class Clock : public Control {
 public:
  static constexpr int Blank = 10;

  explicit Clock(const Kit& kit) : Control(kit, {70, 28}) {}

  // One or two digits of hours, a colon, two digits of minutes; what follows does not count. A character that
  // is no digit, or that is missing, counts 0.
  void SetText(std::string_view text);
  // Shows the colon, or hides it.
  void Blink() { show(colonIsVisible_, !colonIsVisible_); }

  // The four places from the left: a digit or Blank.
  const std::array<int, 4>& digits() const { return digits_; }
  bool colonIsVisible() const { return colonIsVisible_; }

  void paint(Surface& surface) const override;
  Described described() const override;

 private:
  std::array<int, 4> digits_ = {Blank, Blank, Blank, Blank};
  bool colonIsVisible_ = false;
};

}  // namespace zub::controls
