// A window's layout as data: kinds, names, texts and places of its controls. Whoever has windows shows it;
// nothing here knows how.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "state/Controls.h"

namespace zub::layout {

// In twips: 1440 an inch, 15 a pixel where the screen has 96 pixels an inch.
inline constexpr int TwipsPerPixel = 15;

struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  constexpr int right() const { return left + width; }
  constexpr int bottom() const { return top + height; }
  bool operator==(const Place&) const = default;
};

// A place told in pixels of 96 an inch.
constexpr Place px(int left, int top, int width, int height) {
  return {left * TwipsPerPixel, top * TwipsPerPixel, width * TwipsPerPixel, height * TwipsPerPixel};
}

enum class Kind : std::uint8_t {
  // The control kit.
  Button,
  Check,
  Group,
  IconList,
  Clock,
  CloseButton,
  // Plain controls.
  Label,
  Edit,
  Memo,     // several lines
  Content,  // several lines, read only
  Report,   // a text that grows, read only, in the report's colours
  List,
  CheckList,
  DropDown,
  EditCombo,
  Radio,
  Tabs,  // the headers alone; the window's pages follow in the order of the headers
  Page,
  StatusBar,
  // Pictures.
  Picture,  // the caption is the name of its bitmap
  ProgramIcon,
  Line,
};

enum class Text : std::uint8_t { Normal, Bold, Centred, Help, Report };

struct TextFont {
  std::string_view name;
  float points;
  bool bold;
};
constexpr TextFont fontOf(Text text) {
  switch (text) {
    case Text::Help:
      return {"Arial Narrow", 7.5F, false};
    case Text::Report:
      return {"Arial", 9, false};
    case Text::Bold:
      return {"Arial", 8.25F, true};
    case Text::Centred:
      return {"Arial", 7.5F, false};
    case Text::Normal:
      break;
  }
  return {"Arial", 8.25F, false};
}

struct ControlSpec {
  std::string_view parent;  // the group or page that holds it, told before it; empty for the window
  Kind kind;
  std::string_view name;
  Place place;               // counted from the parent's corner
  std::string_view caption;  // with "&" before the access key
  std::string_view toolTip;
  Text text = Text::Normal;
  Color color = colors::Black;
};

enum class Border : std::uint8_t {
  Minimise,  // title, minimise and close box
  Fixed,     // title and close box
  Dialog,    // the same, with the edge of a dialog
  None,
};

struct WindowSpec {
  std::string_view title;
  int width;  // of the client area, twips
  int height;
  Border border;
  Color background;
  std::span<const ControlSpec> controls;  // in Tab order
  std::string_view backdrop = {};         // the name of a bitmap that fills the window; empty for none
};

const ControlSpec* find(const WindowSpec& window, std::string_view name);
// The colour under a control: that of its page, or of the window.
Color groundOf(const WindowSpec& window, const ControlSpec& control);

extern const WindowSpec mainWindow;
extern const WindowSpec progressWindow;
extern const WindowSpec reportWindow;
extern const WindowSpec editorWindow;
extern const WindowSpec ieCookieWindow;
extern const WindowSpec netscapeCookieWindow;
extern const WindowSpec aboutWindow;
extern const WindowSpec messageWindow;

}  // namespace zub::layout
