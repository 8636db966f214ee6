// Each window as a text: every control with its place, words, letters and colours, and the member that it shows.
#include <doctest/doctest.h>

#include <map>
#include <sstream>

#include "ui/Screen.h"

using namespace zub;
using namespace zub::layout;

namespace {

// Members of the forms by their addresses, each under its name as the source tells it: "&form.lblKeep[0], &form.lstKeep".
using Members = std::map<const void*, std::string>;

void add(Members& members, std::string words, std::initializer_list<const void*> addresses) {
  std::ranges::replace(words, '[', '(');
  std::ranges::replace(words, ']', ')');
  std::istringstream list(words);
  std::string word;
  for (const void* address : addresses) {
    std::getline(list, word, ',');
    members[address] = word.substr(word.find_last_of(".&") + 1);
  }
}

#define ADD(...) add(members, #__VA_ARGS__, {__VA_ARGS__})

Members membersOf(Windows& windows) {
  Options& options = windows.program.options;
  frmMain& main = windows.program.main;
  const frmAnimated::State& wash = windows.program.engine.animated.peek().state;
  frmPluginEditor::State& editor = windows.program.editor->state;
  frmIECookieKeep& ie = *windows.program.ieCookies;
  frmNSCookieKeep& ns = *windows.program.nsCookies;
  MessageBox& box = windows.messageBox;
  const ClockDisplay& Clock = main.automatic.display;
  Members members;
  ADD(&options.chkIECache, &options.chkIECookies, &options.chkIEProgram, &options.chkIEIndex,
      &options.chkIEAutocomplete, &options.chkNSCache, &options.chkNSCookies, &options.chkNSMail,
      &options.chkNSHistory, &options.chkLoadStartUp, &options.chkCloseAfterWash, &options.chkBleach,
      &options.chkSkipPlugins, &options.chkSkipMessages, &options.chkRunStarted, &options.chkRunShutDown,
      &options.chkRunAuto, &options.cmbShredder, &options.ComboInterval, &options.lstFiles,
      &options.standardlist, &options.lblLastRemoval, &options.LstIcons);
  ADD(&main.lblHelp, &main.lblOptionsHelp, &main.lblSchedulerHelp, &main.lblStandardPluginDescription,
      &main.grpIE, &main.grpNS, &main.cmdViewLog, &main.chkSelectAll, &main.StandardPluginsSelectAll,
      &main.automatic.lblTimerRemove, &main.dated.lstSchedule, &main.dated.txtDate, &main.dated.txtTime,
      &Clock);
  ADD(&wash.Label1, &wash.Label2, &wash.Label3, &wash.Label4, &wash.Label5, &wash.Label6, &wash.Label7,
      &wash.Label8, &wash.Label9, &wash.Label10, &wash.Label11, &wash.Label14, &wash.Image3, &wash.Image4,
      &wash.Image5, &wash.Image6, &wash.Image7, &wash.Image8, &wash.Image9, &wash.Image10, &wash.Image11,
      &wash.Image12, &wash.Image13, &wash.Image14, &wash.ImgAnimate, &wash.ImgEntries, &wash.lblApplication,
      &wash.lblCurrent, &wash.lblRemove, &wash.StatusBar1, &wash.cmdFinish, &wash.cmdLog);
  ADD(&windows.program.engine.clean.txtResult);
  ADD(&main.preview.ImgAnimate, &main.preview.lblApplication, &main.preview.lblCurrent,
      &main.preview.txtResult);
  ADD(&editor.txtName, &editor.cmdOK, &editor.cmdApply, &editor.cmdCancel, &editor.lstRegistry,
      &editor.cmdRegNew, &editor.cmdRegRemove, &editor.cmdRegistryAdd, &editor.cmbPathRegistry,
      &editor.txtPath, &editor.cmbRegistry, &editor.txtKeyValue, &editor.lstFileFolder, &editor.cmdFFNew,
      &editor.cmdFFRemove, &editor.cmdAddFF, &editor.txtPathFF, &editor.cmdPathBrowse, &editor.optFileName,
      &editor.optFilePattern, &editor.txtFileName, &editor.txtFilePattern, &editor.chkSubfolders,
      &editor.txtInfoPlugin, &editor.txtComments);
  ADD(&ie.lstDelete, &ie.txtKeep, &ie.chkSelectAll);
  ADD(&ns.lstDelete, &ns.txtKeep, &ns.chkSelectAll, &ns.cmbProfile, &ns.lblKeep[0], &ns.lblKeep[1]);
  ADD(&windows.about.lblTitle, &windows.about.lblVersion);
  ADD(&box.lblTitle, &box.lblMessage, &box.imginformation, &box.imgquestion, &box.imgcritical,
      &box.imgexclamation, &box.cmdYes, &box.cmdNo);
  return members;
}

#undef ADD

const void* addressOf(const Shown& shown) {
  const auto of = []<class State>(const State& state) -> const void* {
    if constexpr (std::is_same_v<State, IconListState>) return state.checks;
    if constexpr (std::is_pointer_v<State>) return state;
    return nullptr;
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
  for (std::size_t at = 0; at < windows.all.size(); ++at) {
    checkGolden(std::string(windowNames[at]) + ".txt", textOf(windows.all[at]));
  }
  Members members = membersOf(windows);
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

TEST_CASE("looking at the progress window does not load it") {
  Windows windows;
  CHECK(windows.of(faces::Progress).form() == nullptr);
  CHECK_FALSE(windows.program.engine.animated.loaded());
}
