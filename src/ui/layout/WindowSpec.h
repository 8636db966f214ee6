// A window as one table: kinds, names, texts and places of its controls, what they show and what they call.
// Whoever has windows shows it; nothing here knows how. What a table is tied to outlives the window; a form that is
// not loaded yet is never touched but through `form`.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "state/Controls.h"
#include "state/Lists.h"
#include "state/Options.h"

namespace zub {

template <class T>
class AutoLoad;
class frmAbout;
class frmAnimated;
class frmClean;
class frmIECookieKeep;
class frmMain;
class frmNSCookieKeep;
class frmPluginEditor;
class frmPreview;
class MessageBox;
struct OptionButton;

}  // namespace zub

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
  Tabs,  // the headers alone, of the pages that the window holds
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
  if (text == Text::Report) return {"Arial", 9, false};
  const bool small = text == Text::Help || text == Text::Centred;
  return {text == Text::Help ? "Arial Narrow" : "Arial", small ? 7.5F : 8.25F, text == Text::Bold};
}

struct IconListState {
  IconChecks* checks;
  std::function<void(int row)> ClickSelect;
  std::function<void(int row)> ClickCheck;
};

// What a control shows, and writes where the user can change it. `bool` is the visibility of a picture.
using Shown =
    std::variant<std::monostate, CheckOption*, const Label*, const Button*, ListRows*, Combo*, TextBox*,
                 const Image*, const Group*, IconListState, const ClockDisplay*, const std::string*,
                 const OptionButton*, const std::array<std::string, 2>*, const bool*>;

struct ControlSpec;
using Controls = std::vector<ControlSpec>;  // in Tab order

// A row of the table; Rows.h makes them.
struct ControlSpec {
  Kind kind;
  std::string_view name;
  Place place;                    // counted from the corner of what holds it
  std::string_view caption = {};  // with "&" before the access key; empty where what is shown has one
  std::string_view toolTip = {};
  Text text = Text::Normal;
  Color color = colors::Black;
  Shown shown = {};
  Handler click = {};
  Controls inside = {};  // of a group or a page
};

// What a control that says the same all the time says, or that which says something else begins with.
std::string_view captionOf(const ControlSpec& control);

enum class Border : std::uint8_t {
  Minimise,  // title, minimise and close box
  Fixed,     // title and close box
  Dialog,    // the same, with the edge of a dialog
  None,
};

// What a window is before there is a form to show.
struct Face {
  std::string_view title;
  int width;  // of the client area, twips
  int height;
  Border border;
  Color background;
  std::string_view backdrop = {};  // the name of a bitmap that fills the window; empty for none

  bool operator==(const Face&) const = default;
};

namespace faces {
inline constexpr Face Main{"Zubrane", 455 * TwipsPerPixel, 412 * TwipsPerPixel, Border::Minimise,
                           colors::Window};
inline constexpr Face Progress{"ZUB - Task Removal Status", 440 * TwipsPerPixel, 356 * TwipsPerPixel,
                               Border::Fixed, colors::ProgressWindow};
inline constexpr Face Report{"Log Report", 520 * TwipsPerPixel, 400 * TwipsPerPixel, Border::Fixed,
                             colors::Window};
inline constexpr Face Preview{"ZUB - Preview", 376 * TwipsPerPixel, 138 * TwipsPerPixel, Border::Fixed,
                              colors::ProgressWindow};
inline constexpr Face PreviewReport{"Preview", 520 * TwipsPerPixel, 400 * TwipsPerPixel, Border::Fixed,
                                    colors::Window};
inline constexpr Face Editor{"ZUB Plugin Editor", 480 * TwipsPerPixel, 378 * TwipsPerPixel, Border::Fixed,
                             colors::Window};
inline constexpr Face IECookies{"Internet Explorer Cookie Manger", 420 * TwipsPerPixel, 412 * TwipsPerPixel,
                                Border::Fixed, colors::Window};
inline constexpr Face NetscapeCookies{"Netscape Cookie Manger", 420 * TwipsPerPixel, 412 * TwipsPerPixel,
                                      Border::Fixed, colors::Window};
inline constexpr Face About{"About ZUB", 6855, 3345, Border::Dialog, colors::White};
inline constexpr Face Message{"Zubrone", 5970, 2310, Border::None, colors::Page, "message-background"};

inline constexpr const Face* All[] = {&Main,   &Progress,  &Report,          &Preview, &PreviewReport,
                                      &Editor, &IECookies, &NetscapeCookies, &About,   &Message};
}  // namespace faces

struct WindowSpec {
  Face face;
  Controls controls;

  std::function<Form*()> form;  // null while the form is not loaded
  Handler close = {};           // the close box
  Handler escape = {};          // the Esc key
  Handler resize = {};          // behind a change of the window's state
  Handler queryEnd = {};        // the Windows session is about to end
  Handler end = {};             // it ends
  bool anew = false;            // each showing is a load: in the middle, on the first page
  std::function<const TextBox*()> takesFocus =
      {};  // the box that the form gave the focus since the last call
};

WindowSpec mainWindow(frmMain& form);
WindowSpec progressWindow(AutoLoad<frmAnimated>& form);
WindowSpec reportWindow(frmClean& form);
WindowSpec previewWindow(frmPreview& form);
WindowSpec previewReportWindow(frmPreview& form);
WindowSpec editorWindow(frmPluginEditor& form);
WindowSpec cookieWindow(frmIECookieKeep& form);
WindowSpec cookieWindow(frmNSCookieKeep& form);
WindowSpec aboutWindow(frmAbout& form);
WindowSpec messageWindow(MessageBox& form);

}  // namespace zub::layout
