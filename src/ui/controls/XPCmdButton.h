// The push button: a frame stretched out of one cell of a picture strip, with a centred caption.
#pragma once

#include <cstdint>
#include <string>

#include "ui/controls/CaptionLabel.h"
#include "ui/controls/Control.h"

namespace zub::controls {

class XPCmdButton : public Control {
 public:
  explicit XPCmdButton(const Kit& kit);

  Handler Click;
  KeyEvent KeyDown, KeyUp;
  KeyPressEvent KeyPress;
  MouseEvent MouseDown, MouseUp, MouseMove;
  Handler MouseOut;  // the pointer has left

  using Control::Enabled;
  void Enabled(bool enabled) override;
  // The state of the button when the mouse is out: 0 normal, 1 marked; any other keeps the look.
  std::int32_t State() const { return state_; }
  void State(std::int32_t state);
  std::string Caption() const override { return label_.text; }
  void Caption(const std::string& caption);
  const FontRef& Font() const { return label_.font; }
  void Font(const FontRef& font);

  void paint(Surface& surface) const override;
  void shown() override { Redraw(); }

  Described described() const override { return {.role = Role::Button, .name = Caption()}; }

  // A stored State is lost: only code sets it.
  void InitProperties(const Ambient& ambient) override;
  void ReadProperties(const PropertyBag& bag, const Ambient& ambient) override;
  void WriteProperties(PropertyBag& bag, const Ambient& ambient) const override;

 protected:
  void onMouseDown(int part, Mouse& mouse) override;
  void onMouseMove(int part, Mouse& mouse) override;
  void onMouseUp(int part, Mouse& mouse) override;
  void onClick(int) override { raise(Click); }
  void onKeyDown(std::int16_t code, std::int16_t shift) override { raise(KeyDown, code, shift); }
  void onKeyUp(std::int16_t code, std::int16_t shift) override { raise(KeyUp, code, shift); }
  void onKeyPress(std::int16_t ascii) override { raise(KeyPress, ascii); }
  void onPress() override { raise(Click); }
  void onTimer() override;
  void onResize() override { Redraw(); }

 private:
  enum Cell { Normal, Pressed, Disabled, Hot, Marked };

  void Redraw();
  void DrawCell(Cell index) { show(cell_, index); }
  // Centred; half a pixel stays where the room around the caption is odd.
  struct Corner {
    float left, top;
  };
  Corner labelCorner() const;
  bool isOnLabel(const Mouse& mouse) const;
  // The event as whichever reports it, the label or the surface, counts its place.
  Mouse asReported(Mouse mouse) const;

  CaptionLabel label_;
  std::int32_t state_ = 0;
  Cell cellIndex_ = Normal;  // at rest
  Cell cell_ = Normal;       // on show
  bool labelIsPressed_ = false;
};

}  // namespace zub::controls
