// The two title buttons, minimise and close.
#pragma once

#include <array>

#include "ui/controls/Control.h"

namespace zub::controls {

class MinMax : public Control {
 public:
  explicit MinMax(const Kit& kit);

  Handler MinClicked, CloseClicked;

  std::string_view toolTip(Point at) const override;
  void paint(Surface& surface) const override;

 protected:
  int partAt(float x, float y) const override;
  void onMouseDown(int part, Mouse& mouse) override;
  void onMouseMove(int part, Mouse& mouse) override;
  void onMouseUp(int part, Mouse& mouse) override;
  void onClick(int part) override;
  void onTimer() override;

 private:
  // The background shows the buttons at rest, so an empty button is one at rest.
  enum Look { Empty, Hot, Pressed };
  using Looks = std::array<Look, 2>;

  Box buttonPlace(std::size_t button) const;

  Looks shown_ = {Empty, Empty};
};

}  // namespace zub::controls
