// Surroundings for controls under test: art, the bitmap font, and a pointer that the test moves; and what a user
// does to a control.
#pragma once

#include "kit/BitmapFont.h"
#include "ui/controls/Control.h"

namespace zub::controls {

class SetPointer : public PointerSource {
 public:
  Point at;
  Point pointerOver(const Control&) override { return at; }
};

struct Desk {
  Art art;
  BitmapFont font;
  SetPointer pointer;
  Kit kit{art, font, pointer};

  explicit Desk(Art pictures = Art()) : art(std::move(pictures)) {}
};

using Act = std::function<void(Desk&, Control&)>;

inline Act move(std::int16_t buttons, float x, float y) {
  return [=](Desk&, Control& control) { control.mouseMove({buttons, 0, x, y}); };
}
inline Act down(std::int16_t button, float x, float y) {
  return [=](Desk&, Control& control) { control.mouseDown({button, 0, x, y}); };
}
inline Act up(std::int16_t button, float x, float y) {
  return [=](Desk&, Control& control) { control.mouseUp({button, 0, x, y}); };
}
inline Act click(float x, float y) {
  return [=](Desk& desk, Control& control) {
    down(LeftButton, x, y)(desk, control);
    up(LeftButton, x, y)(desk, control);
  };
}
inline Act key(std::int16_t code) {
  return [=](Desk&, Control& control) { control.keyDown(code, 0); };
}
// The timer's, with the pointer at a place.
inline Act tick(int x, int y) {
  return [=](Desk& desk, Control& control) {
    desk.pointer.at = {x, y};
    control.timerTick();
  };
}
inline Act call(const Handler& handler) {
  return [=](Desk&, Control&) { handler(); };
}

}  // namespace zub::controls
