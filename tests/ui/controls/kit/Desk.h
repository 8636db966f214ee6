// Surroundings for controls under test: art, the bitmap font, and a pointer that the test moves.
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

}  // namespace zub::controls
