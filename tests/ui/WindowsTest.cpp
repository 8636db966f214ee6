// Each window as a text: every control with its place, words, letters and colours, and the member that it shows.
#include <doctest/doctest.h>

#include <cstdio>
#include <map>
#include <sstream>

#include "ui/Windows.h"

using namespace zub;
using namespace zub::layout;

namespace {

#define MEMBER(object, name) \
  { &(object).name, #name }

// The members of the forms by their addresses.
std::map<const void*, std::string> membersOf(Windows& windows) {
  Options& options = windows.program.options;
  frmMain& main = windows.program.main;
  const frmAnimated::State& wash = windows.program.engine.animated.peek().state;
  frmPluginEditor::State& editor = windows.program.editor->state;
  frmIECookieKeep& ie = *windows.program.ieCookies;
  frmNSCookieKeep& ns = *windows.program.nsCookies;
  MessageBox& box = windows.messageBox;
  return {
      MEMBER(options, chkIECache),
      MEMBER(options, chkIECookies),
      MEMBER(options, chkIEProgram),
      MEMBER(options, chkIEIndex),
      MEMBER(options, chkIEAutocomplete),
      MEMBER(options, chkNSCache),
      MEMBER(options, chkNSCookies),
      MEMBER(options, chkNSMail),
      MEMBER(options, chkNSHistory),
      MEMBER(options, chkLoadStartUp),
      MEMBER(options, chkCloseAfterWash),
      MEMBER(options, chkBleach),
      MEMBER(options, chkSkipPlugins),
      MEMBER(options, chkSkipMessages),
      MEMBER(options, chkRunStarted),
      MEMBER(options, chkRunShutDown),
      MEMBER(options, chkRunAuto),
      MEMBER(options, cmbShredder),
      MEMBER(options, ComboInterval),
      MEMBER(options, lstFiles),
      MEMBER(options, standardlist),
      MEMBER(options, lblLastRemoval),
      MEMBER(options, LstIcons),
      MEMBER(main, lblHelp),
      MEMBER(main, lblOptionsHelp),
      MEMBER(main, lblSchedulerHelp),
      MEMBER(main, lblStandardPluginDescription),
      MEMBER(main, grpIE),
      MEMBER(main, grpNS),
      MEMBER(main, cmdViewLog),
      MEMBER(main, chkSelectAll),
      MEMBER(main, StandardPluginsSelectAll),
      MEMBER(main.automatic, lblTimerRemove),
      {&main.automatic.display, "Clock"},
      MEMBER(main.dated, lstSchedule),
      MEMBER(main.dated, txtDate),
      MEMBER(main.dated, txtTime),
      MEMBER(wash, Label1),
      MEMBER(wash, Label2),
      MEMBER(wash, Label3),
      MEMBER(wash, Label4),
      MEMBER(wash, Label5),
      MEMBER(wash, Label6),
      MEMBER(wash, Label7),
      MEMBER(wash, Label8),
      MEMBER(wash, Label9),
      MEMBER(wash, Label10),
      MEMBER(wash, Label11),
      MEMBER(wash, Label14),
      MEMBER(wash, Image3),
      MEMBER(wash, Image4),
      MEMBER(wash, Image5),
      MEMBER(wash, Image6),
      MEMBER(wash, Image7),
      MEMBER(wash, Image8),
      MEMBER(wash, Image9),
      MEMBER(wash, Image10),
      MEMBER(wash, Image11),
      MEMBER(wash, Image12),
      MEMBER(wash, Image13),
      MEMBER(wash, Image14),
      MEMBER(wash, ImgAnimate),
      MEMBER(wash, ImgEntries),
      MEMBER(wash, lblApplication),
      MEMBER(wash, lblCurrent),
      MEMBER(wash, lblRemove),
      MEMBER(wash, StatusBar1),
      MEMBER(wash, cmdFinish),
      MEMBER(wash, cmdLog),
      MEMBER(windows.program.engine.clean, txtResult),
      MEMBER(editor, txtName),
      MEMBER(editor, cmdOK),
      MEMBER(editor, cmdApply),
      MEMBER(editor, cmdCancel),
      MEMBER(editor, lstRegistry),
      MEMBER(editor, cmdRegNew),
      MEMBER(editor, cmdRegRemove),
      MEMBER(editor, cmdRegistryAdd),
      MEMBER(editor, cmbPathRegistry),
      MEMBER(editor, txtPath),
      MEMBER(editor, cmbRegistry),
      MEMBER(editor, txtKeyValue),
      MEMBER(editor, lstFileFolder),
      MEMBER(editor, cmdFFNew),
      MEMBER(editor, cmdFFRemove),
      MEMBER(editor, cmdAddFF),
      MEMBER(editor, txtPathFF),
      MEMBER(editor, cmdPathBrowse),
      MEMBER(editor, optFileName),
      MEMBER(editor, optFilePattern),
      MEMBER(editor, txtFileName),
      MEMBER(editor, txtFilePattern),
      MEMBER(editor, chkSubfolders),
      MEMBER(editor, txtInfoPlugin),
      MEMBER(editor, txtComments),
      MEMBER(ie, lstDelete),
      MEMBER(ie, txtKeep),
      MEMBER(ie, chkSelectAll),
      MEMBER(ns, lstDelete),
      MEMBER(ns, txtKeep),
      MEMBER(ns, chkSelectAll),
      MEMBER(ns, cmbProfile),
      {&ns.lblKeep[0], "lblKeep(0)"},
      {&ns.lblKeep[1], "lblKeep(1)"},
      MEMBER(windows.about, lblTitle),
      MEMBER(windows.about, lblVersion),
      MEMBER(box, lblTitle),
      MEMBER(box, lblMessage),
      MEMBER(box, imginformation),
      MEMBER(box, imgquestion),
      MEMBER(box, imgcritical),
      MEMBER(box, imgexclamation),
      MEMBER(box, cmdYes),
      MEMBER(box, cmdNo),
  };
}

#undef MEMBER

const void* addressOf(const Shown& shown) {
  const auto of = []<class State>(const State& state) -> const void* {
    if constexpr (std::is_same_v<State, IconListState>) return state.checks;
    if constexpr (std::is_pointer_v<State>) return state;
    return nullptr;
  };
  return std::visit(of, shown);
}

// How it begins: out of sight, not to be used, in letters of another colour.
std::string stateOf(const Shown& shown) {
  const auto of = []<class State>(const State& state) {
    std::string text;
    if constexpr (requires { state->Visible; }) text += state->Visible ? "" : ", hidden";
    if constexpr (requires { state->Enabled; }) text += state->Enabled ? "" : ", disabled";
    if constexpr (std::is_same_v<State, const bool*>) text += *state ? "" : ", hidden";
    if constexpr (requires { state->Bold; }) text += state->Bold ? ", bold" : "";
    if constexpr (requires { state->ForeColor; }) {
      char color[16];
      std::snprintf(color, sizeof color, ", %06x", static_cast<unsigned>(state->ForeColor));
      if (state->ForeColor != colors::Black) text += color;
    }
    return text;
  };
  return std::visit(of, shown);
}

std::string_view nameOf(Kind kind) {
  constexpr std::string_view names[] = {"button", "check",   "group", "icon list", "clock",  "close button",
                                        "label",  "edit",    "memo",  "content",   "report", "list",
                                        "checks", "drop",    "combo", "radio",     "tabs",   "page",
                                        "status", "picture", "icon",  "line"};
  static_assert(std::size(names) == static_cast<std::size_t>(Kind::Line) + 1);
  return names[static_cast<std::size_t>(kind)];
}

void tell(std::ostream& text, const Controls& controls, const std::string& indent) {
  for (const ControlSpec& control : controls) {
    const Place& place = control.place;
    text << indent << nameOf(control.kind) << ' ' << control.name << ": " << place.left << ',' << place.top
         << ' ' << place.width << 'x' << place.height;
    if (const std::string_view caption = captionOf(control); !caption.empty())
      text << " \"" << caption << '"';
    if (!control.toolTip.empty()) text << " (" << control.toolTip << ')';
    const TextFont font = fontOf(control.text);
    if (control.text != Text::Normal)
      text << ", " << font.name << ' ' << font.points << (font.bold ? " bold" : "");
    if (control.color != colors::Black) text << ", " << std::hex << control.color << std::dec;
    text << stateOf(control.shown) << (control.click ? ", acts" : "") << '\n';
    tell(text, control.inside, indent + "  ");
  }
}

std::string textOf(const WindowSpec& window) {
  std::ostringstream text;
  const Face& face = window.face;
  text << '"' << face.title << "\": " << face.width << 'x' << face.height << ", border "
       << static_cast<int>(face.border) << ", ground " << std::hex << face.background << std::dec
       << (face.backdrop.empty() ? "" : ", backdrop ") << face.backdrop << (window.anew ? ", anew" : "")
       << (window.escape ? ", Esc" : "") << '\n';
  tell(text, window.controls, "  ");
  return text.str();
}

}  // namespace

TEST_CASE("every window is as its text tells, and shows the members that its controls are named for") {
  Windows windows;
  const std::string names[] = {"main",       "progress",         "report", "editor",
                               "ie-cookies", "netscape-cookies", "about",  "message"};
  for (std::size_t at = 0; at < windows.all.size(); ++at) {
    checkGolden(names[at] + ".txt", textOf(windows.all[at]));
  }
  std::map<const void*, std::string> members = membersOf(windows);
  for (const WindowSpec& window : windows.all) {
    walk(window.controls, [&](const ControlSpec& control, const auto*, std::string_view) {
      const void* shown = addressOf(control.shown);
      if (shown == nullptr) return;
      CAPTURE(window.face.title);
      CHECK(members[shown] == control.name);
      members.erase(shown);
    });
  }
  CHECK(members.empty());  // each is shown once
}

TEST_CASE("the close box of every window closes it; that of the main window ends the program") {
  Windows windows;
  for (const WindowSpec& window : windows.all) {
    if (!window.close) continue;  // the message box has none
    CAPTURE(window.face.title);
    if (window.face == faces::Progress) windows.program.engine.animated->state.form.Show();
    Form& form = *window.form();
    form.Show();
    if (window.face == faces::Main) {
      CHECK_THROWS_AS(window.close(), EndOfProcess);
      continue;
    }
    window.close();
    CHECK((window.form() == nullptr || !form.Visible));
    if (!window.escape) continue;
    if (window.form() == nullptr) windows.program.engine.animated->state.form.Show();
    form.Show();
    window.escape();
    CHECK((window.form() == nullptr || !form.Visible));
  }
}

TEST_CASE("the buttons of the windows do what they say") {
  Windows windows;
  Program& program = windows.program;
  const auto press = [&windows](const Face& face, std::string_view name) {
    find(windows.of(face), name).click();
  };
  constexpr const Face& Editor = faces::Editor;
  frmPluginEditor::State& editor = program.editor->state;
  const std::string plugins = "C:\\Program Files\\Zubrane\\Plugins\\";

  press(faces::Main, "cmdNewPlugin");
  editor.txtName.Text = "Shop";
  press(Editor, "cmdRegNew");
  CHECK(editor.lstRegistry.Text() == "");
  press(Editor, "cmdFFNew");
  editor.txtPathFF.Text = "C:\\Shop";
  editor.txtFilePattern.Text = "*.tmp";
  CHECK_FALSE(editor.chkSubfolders.Value() == 1);
  press(Editor, "optFilePattern");
  CHECK(editor.chkSubfolders.Enabled);
  CHECK_FALSE(editor.txtFileName.Enabled);
  press(Editor, "cmdAddFF");
  CHECK(editor.lstFileFolder.Text() == "C:\\Shop\\*.tmp");
  press(Editor, "optFileName");
  CHECK_FALSE(editor.chkSubfolders.Enabled);
  press(Editor, "cmdApply");
  CHECK(windows.pc.bytes(plugins + "Shop.zb1") == "C:\\Shop\\*.tmp\r\n");
  CHECK(editor.form.Visible);
  press(Editor, "cmdOK");  // nothing new to save: it stays
  CHECK(editor.form.Visible);
  editor.txtPath.Text = "Software";
  editor.txtKeyValue.Text = "Shop";
  press(Editor, "cmdRegistryAdd");
  press(Editor, "cmdOK");
  CHECK_FALSE(editor.form.Visible);
  CHECK(windows.pc.bytes(plugins + "Shop.zb2") == "HKey_Current_User\\Software\\Shop- Key*\r\n");
  CHECK(program.options.lstFiles.ListCount() == 1);

  program.options.lstFiles.Clear();
  press(faces::Main, "cmdRefresh");
  CHECK(program.options.lstFiles.List(0) == "Shop");
  press(faces::Main, "cmdDownload");
  press(faces::Main, "cmdHelp");
  CHECK(windows.pc.opened.size() == 2);
}

TEST_CASE("a focus that a form asked for is given once") {
  Windows windows;
  const WindowSpec& window = windows.of(faces::Editor);
  CHECK(window.takesFocus() == nullptr);
  windows.program.editor->NewPlugin();
  CHECK(window.takesFocus() == &windows.program.editor->state.txtName);
  CHECK(window.takesFocus() == nullptr);
}

TEST_CASE("looking at the progress window does not load it") {
  Windows windows;
  CHECK(windows.of(faces::Progress).form() == nullptr);
  CHECK_FALSE(windows.program.engine.animated.loaded());
}
