// What all controls of the kit have in common. A control owns its look and its events; a host gives it a
// rectangle of a window, hands it the input, runs its timer, and paints it whenever `revision` has moved.
// Places are pixels of the screen, counted from the control's corner.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "state/Controls.h"
#include "ui/controls/Art.h"
#include "ui/controls/PropertyBag.h"
#include "ui/controls/Surface.h"
#include "ui/controls/TextPainter.h"

namespace zub::controls {

class Control;

// Where the pointer is. A control gets no message when the pointer leaves it, so it asks.
class PointerSource {
 public:
  virtual ~PointerSource() = default;
  virtual Point pointerOver(const Control& control) = 0;
};

// What a control, or a part of it, is to those who cannot see it.
enum class Role : std::uint8_t { Picture, Button, CheckBox, Group, List, ListItem, Clock };
struct Described {
  Role role = Role::Picture;
  std::string name;  // with the ampersand before its access key
  bool checkable = false;
  bool checked = false;
  bool selected = false;
  bool operator==(const Described&) const = default;
};

// What a control needs of its surroundings; all of it must outlive the control.
struct Kit {
  const Art& art;
  TextPainter& text;
  PointerSource& pointer;
  Scale scale = {};
};

inline constexpr std::int16_t LeftButton = 1;
inline constexpr std::int16_t RightButton = 2;
inline constexpr std::int16_t MiddleButton = 4;

// `Button` is the button that went down or up, for a move the sum of those that are down. `Shift` is the sum
// of 1 for shift, 2 for control, 4 for alt.
struct Mouse {
  std::int16_t Button = 0;
  std::int16_t Shift = 0;
  float X = 0;
  float Y = 0;
};

using MouseEvent = std::function<void(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y)>;
using KeyEvent = std::function<void(std::int16_t& KeyCode, std::int16_t& Shift)>;
using KeyPressEvent = std::function<void(std::int16_t& KeyAscii)>;
using IndexEvent = std::function<void(std::int16_t& Index)>;

template <class... Parameters, class... Arguments>
void raise(const std::function<void(Parameters...)>& handler, Arguments&&... arguments) {
  if (handler) handler(std::forward<Arguments>(arguments)...);
}

// A left drag on a window's bare background moves the window. `buttons` are those that are down in a mouse
// move over the window itself, not over a control.
constexpr bool dragsWindow(std::int16_t buttons) {
  return buttons == LeftButton;
}

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  int width() const { return size_.width; }
  int height() const { return size_.height; }
  void resize(int width, int height);

  // Paints the whole control on a surface of its size.
  virtual void paint(Surface& surface) const = 0;
  // Moves on with every change of the look.
  unsigned revision() const { return revision_; }

  bool Enabled() const { return enabled_; }
  virtual void Enabled(bool enabled);
  // What shows where the control's pictures are transparent.
  Color BackColor() const { return backColor_; }
  void BackColor(Color color);
  // With its ampersands; empty for a control that has none.
  virtual std::string Caption() const { return {}; }
  virtual std::string_view toolTip(Point) const { return {}; }
  // The frame that tells that the control has the keyboard; empty for a control that tells nothing.
  virtual Box focusPlace() const { return {}; }

  // Input. A disabled control gets none of it. The host keeps the mouse with a control while a button is down on it.
  void mouseDown(Mouse mouse);
  void mouseMove(Mouse mouse);
  void mouseUp(Mouse mouse);
  // In place of the mouse down of a double click's second press.
  void mouseDoubleClick(Mouse mouse) {
    if (enabled_) onDoubleClick(mouse);
  }
  void keyDown(std::int16_t code, std::int16_t shift) {
    if (enabled_) onKeyDown(code, shift);
  }
  void keyUp(std::int16_t code, std::int16_t shift) {
    if (enabled_) onKeyUp(code, shift);
  }
  void keyPress(std::int16_t ascii) {
    if (enabled_) onKeyPress(ascii);
  }
  // A click without the mouse: the caption's access key, or automation.
  void press() {
    if (enabled_) onPress();
  }
  // For those who cannot see it. The parts that count by themselves are numbered from 0.
  virtual Described described() const { return {}; }
  virtual int parts() const { return 0; }
  virtual Described describedPart(int) const { return {}; }
  virtual Box partPlace(int) const { return {}; }
  virtual void selectPart(int) {}
  virtual void pressPart(int) {}

  // The control has come in sight.
  virtual void shown() {}

  // The host calls timerTick once in each interval while the timer is enabled.
  const Timer& timer() const { return timer_; }
  void timerTick() {
    if (timer_.Enabled) onTimer();
  }

  // Stored properties, and the notice that one of them has changed.
  std::function<void(std::string_view name)> PropertyChanged;
  virtual void InitProperties(const Ambient&) {}
  virtual void ReadProperties(const PropertyBag&, const Ambient&) {}
  virtual void WriteProperties(PropertyBag&, const Ambient&) const {}

 protected:
  // `size` is told for 96 pixels an inch.
  explicit Control(const Kit& kit, Size size = {})
      : kit_(kit), size_(kit.scale.ofPicture(size.width, size.height)) {}

  static constexpr int Nothing = -1;
  // The part of the control at a place. The part that a press meets gets all that follows until the release.
  virtual int partAt(float, float) const { return 0; }
  virtual void onMouseDown(int, Mouse&) {}
  virtual void onMouseMove(int, Mouse&) {}
  virtual void onMouseUp(int, Mouse&) {}
  // The left button went down and up on one part, inside the control.
  virtual void onClick(int) {}
  virtual void onDoubleClick(Mouse& mouse) { mouseDown(mouse); }
  virtual void onKeyDown(std::int16_t, std::int16_t) {}
  virtual void onKeyUp(std::int16_t, std::int16_t) {}
  virtual void onKeyPress(std::int16_t) {}
  virtual void onPress() {}
  virtual void onTimer() {}
  virtual void onResize() {}

  int pixels(int twips) const { return kit_.scale.pixels(twips); }
  Point pixels(Point twips) const { return kit_.scale.pixels(twips); }
  Box pixels(const Box& twips) const { return kit_.scale.pixels(twips); }
  void draw(Surface& surface, std::string_view picture, Point at) const {
    surface.draw(kit_.art[picture], at, kit_.scale);
  }
  bool isPressed() const { return pressed_ != Nothing; }
  // The right and the lower edge count as inside.
  bool holds(float x, float y) const;
  bool pointerHasLeft() const;
  void changeLook() { ++revision_; }
  // Takes over a part of the look.
  template <class T>
  void show(T& shown, const T& now) {
    if (shown == now) return;
    shown = now;
    changeLook();
  }

  Kit kit_;
  Timer timer_;

 private:
  Size size_;
  bool enabled_ = true;
  Color backColor_ = colors::Page;
  unsigned revision_ = 0;
  int pressed_ = Nothing;
};

}  // namespace zub::controls
