// The plain state of what a window shows. A form is made of these; a view compares them with what it last showed.
// They know nothing of windows. Handlers are plain functions that the form's owner sets; an empty one does nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace zub {

using Handler = std::function<void()>;

inline void raise(const Handler& handler) {
  if (handler) handler();
}

// Who hears of a control's changes. It stays with its control: a copy takes over what the control shows, and not who
// hears of it.
class Listener {
 public:
  Listener() = default;
  Listener(const Listener&) {}
  Listener& operator=(const Listener&) { return *this; }
  const Handler& operator=(Handler handler) { return handler_ = std::move(handler); }
  operator const Handler&() const { return handler_; }  // NOLINT(google-explicit-constructor): raise takes it

 private:
  Handler handler_;
};

// 0x00BBGGRR. A value with the top byte 0x80 is a system colour: 0x8000000D is the system's colour 13.
using Color = std::uint32_t;

constexpr Color rgb(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}

namespace colors {
inline constexpr Color Black = 0;
inline constexpr Color White = rgb(255, 255, 255);
inline constexpr Color Green = 0x8000;  // a task that runs or has run
inline constexpr Color SystemHighlight = 0x8000000D;
inline constexpr Color DisabledText = rgb(161, 161, 146);
inline constexpr Color Hint = rgb(85, 83, 74);  // an example beside a box
inline constexpr Color DisabledBack = rgb(235, 235, 228);
inline constexpr Color Title = rgb(0, 70, 213);
inline constexpr Color Page = rgb(246, 247, 242);
inline constexpr Color Window = rgb(234, 232, 216);
inline constexpr Color ProgressWindow = rgb(235, 233, 216);
}  // namespace colors

struct Label {
  std::string Caption;
  bool Visible = true;
  bool Bold = false;
  Color ForeColor = colors::Black;
};

// The pictures that forms show and swap; which bitmap each one is, the views know.
enum class Picture : std::uint8_t {
  None,
  OpenMark,
  DoneMark,
  Frame0,
  Frame1,
  Frame2,
  Frame3,
  Frame4,
  Frame5,
  KindRegistry,
  KindFolder,
  KindFiles,
};

struct Image {
  Picture picture = Picture::None;
};

struct Button {
  std::string Caption;
  bool Visible = true;
  bool Enabled = true;
};

struct TextBox {
  std::string Text;
  bool Enabled = true;
  Color BackColor = colors::White;
  Color ForeColor = colors::Black;
};

struct Group {
  std::string Caption;
  bool Visible = true;
};

struct MenuEntry {
  std::string Caption;
  bool Enabled = true;
};

// The clock on the main tab: a time, and a colon that blinks.
struct ClockDisplay {
  std::string text;
  bool colon = false;

  void SetText(std::string time) { text = std::move(time); }
  void Blink() { colon = !colon; }
};

// The event loop serves it: while enabled, the owner's tick runs once in each Interval.
struct Timer {
  int Interval = 0;  // milliseconds
  bool Enabled = false;
};

enum class WindowState : std::uint8_t { Normal, Minimised };

// The pointer over a window: the wait pointer shows while the form works.
enum class MousePointer : std::uint8_t { Default, Hourglass };

// What every window has.
struct Form {
  bool Visible = false;
  bool Enabled = true;
  WindowState windowState = WindowState::Normal;
  MousePointer mousePointer = MousePointer::Default;
  unsigned shown = 0;  // raised by each Show: the view then brings the window up

  // A window that is shown is not minimised.
  void Show() {
    Visible = true;
    windowState = WindowState::Normal;
    ++shown;
  }
  void Hide() { Visible = false; }
};

// A check control. Every write of the value, also one by code, raises Click: whoever loads settings into it
// runs the option's handler.
class CheckOption {
 public:
  Listener Click;
  bool Enabled = true;

  int Value() const { return value_; }  // 1 on, 0 off
  void Value(int value) {
    value_ = value;
    raise(Click);
  }

 private:
  int value_ = 0;
};

}  // namespace zub
