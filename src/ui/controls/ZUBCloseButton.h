// The close button of a window that has no frame.
#pragma once

#include "ui/controls/Control.h"

namespace zub::controls {

class ZUBCloseButton : public Control {
 public:
  explicit ZUBCloseButton(const Kit& kit);

  Handler Click;

  void paint(Surface& surface) const override;
  Described described() const override { return {.role = Role::Button, .name = "Close"}; }

 protected:
  int partAt(float x, float y) const override;
  void onMouseDown(int part, Mouse& mouse) override;
  void onMouseMove(int part, Mouse& mouse) override;
  void onMouseUp(int part, Mouse& mouse) override;
  void onClick(int) override { raise(Click); }
  void onTimer() override;

 private:
  enum Action { Rest, Pressed, Hot };

  Box picturePlace() const;

  Action shown_ = Rest;
};

}  // namespace zub::controls
