// Ties the controls of a layout to the state that they show and to the handlers that they call. What is tied
// here outlives the window; a form that is not loaded yet is never touched but through `form`.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "plugins/frmPluginEditor.h"
#include "state/Controls.h"
#include "state/Lists.h"
#include "state/Options.h"
#include "ui/layout/WindowSpec.h"

namespace zub {

template <class T>
class AutoLoad;
class frmAbout;
class frmAnimated;
class frmClean;
class frmIECookieKeep;
class frmMain;
class frmNSCookieKeep;
class MessageBox;

}  // namespace zub

namespace zub::layout {

struct IconListState {
  IconChecks* checks;
  std::function<void(int row)> ClickSelect;
  std::function<void(int row)> ClickCheck;
};

// What a control shows, and writes where the user can change it. `bool` is the visibility of a picture.
using Bound =
    std::variant<std::monostate, CheckOption*, const Label*, const Button*, ListRows*, Combo*, TextBox*,
                 const Image*, const Group*, IconListState, const ClockDisplay*, const std::string*,
                 const OptionButton*, const std::array<std::string, 2>*, const bool*>;

struct Binding {
  std::string_view control;
  Bound state;
  Handler click;
};

struct WindowBinding {
  const WindowSpec* window = nullptr;
  std::function<Form*()> form;  // null while the form is not loaded
  std::vector<Binding> controls;
  Handler close;                               // the close box
  Handler escape;                              // the Esc key
  Handler resize;                              // behind a change of the window's state
  Handler queryEnd;                            // the Windows session is about to end
  Handler end;                                 // it ends
  bool anew = false;                           // each showing is a load: in the middle, on the first page
  std::function<const TextBox*()> takesFocus;  // the box that the form gave the focus since the last call
};

WindowBinding bindMain(frmMain& form);
WindowBinding bindProgress(AutoLoad<frmAnimated>& form);
WindowBinding bindReport(frmClean& form);
WindowBinding bindEditor(frmPluginEditor& form);
WindowBinding bindCookies(frmIECookieKeep& form);
WindowBinding bindCookies(frmNSCookieKeep& form);
WindowBinding bindAbout(frmAbout& form);
WindowBinding bindMessageBox(MessageBox& form);

}  // namespace zub::layout
