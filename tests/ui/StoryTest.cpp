// All that comes of what a user does in the windows, from the start of the program to its end.
#include "settings/INIFile.h"
#include "ui/Screen.h"

using namespace zub;
using namespace zub::layout;

namespace {

const std::string Windows98 = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\";
const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";
const std::string Run = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
const std::string PluginFolder = "C:\\Program Files\\Zubrane\\Plugins\\";

struct Story {
  Windows windows;
  Options& options = windows.program.options;
  frmMain& main = windows.program.main;
  Screen screen{windows};
  std::string text;

  void step(const std::string& what, const Handler& act) {
    text += what;
    try {
      act();
    } catch (const EndOfProcess&) {
      text += ": the process ends";
    } catch (const RuntimeError& error) {
      text += ": fails with " + std::to_string(static_cast<int>(error.number())) + ", " + error.description();
    }
    text += '\n' + screen.changes();
  }
  void press(const Face& face, const char* button) {
    step(std::string(button) + " of \"" + std::string(face.title) + '"',
         [&] { windows.press(face, button); });
  }
  void pressAll(const Face& face, std::initializer_list<const char*> buttons) {
    for (const char* button : buttons) press(face, button);
  }
};

}  // namespace

TEST_CASE("the main window shows, tells and keeps what a user does in it, as was approved") {
  Story story;
  TestPc& pc = story.windows.pc;
  for (const char* name : {"Beta", "Gamma"}) pc.file(PluginFolder + name + ".zb1", "C:\\Shop\\*.tmp\r\n");
  for (const char* twin : {"", "-"}) pc.key(Run + twin);
  for (const char* name : {"chkNetscape", "chkRunStarted", "ZUBPlugin Gamma"}) pc.value(Store, name, "1");
  pc.shellFolder("Cookies", "C:\\WINDOWS\\Cookies");
  story.screen.changes();
  story.step("the program starts", [&] { story.windows.program.start(); });
  story.press(faces::Main, "SSTab1");
  for (const int value : {1, 0}) {
    for (const FlagName& flag : flagNames)
      story.step(std::string(flag.stored) + (value == 1 ? " on" : " off"),
                 [&] { (story.options.*flag.option).Value(value); });
  }
  story.step("chkRunStarted on again", [&] { story.options.chkRunStarted.Value(1); });
  story.step("chkLoadStartUp off by itself", [&] { story.options.chkLoadStartUp.Value(0); });
  const Controls& page = story.windows.of(faces::Main).controls[1].inside;
  const auto icons = std::get<IconListState>(page[0].shown);
  for (int row = 0; row < IconChecks::Count; ++row) {
    const std::string name(iconNames[static_cast<std::size_t>(row)].stored);
    story.step(name + " picked", [&] { icons.ClickSelect(row); });
    story.step(name + " checked", [&] { icons.ClickCheck(row); });
  }
  for (CheckOption* all : {&story.main.chkSelectAll, &story.main.StandardPluginsSelectAll}) {
    story.step("Select All on", [&] { all->Value(1); });
    story.step("a row off", [&] {
      (all == &story.main.chkSelectAll ? story.options.lstFiles : story.options.standardlist)
          .Selected(1, false);
    });
    story.step("Select All neither", [&] { all->Value(2); });
    story.step("Select All off", [&] { all->Value(0); });
  }
  story.step("a standard plugin", [&] { story.options.standardlist.ListIndex(1); });
  story.step("an interval typed", [&] { story.options.ComboInterval.type("Every 15 Minutes"); });
  story.step("a tick of the clock", [&] { story.main.automatic.Timer_Tick(); });
  story.step("an interval chosen", [&] { story.options.ComboInterval.ListIndex(1); });
  story.step("Automatic Run on", [&] { story.options.chkRunAuto.Value(1); });
  story.step("a tick of the clock", [&] { story.main.automatic.Timer_Tick(); });
  pc.now.wHour = 12;
  story.step("Automatic Run on two hours later", [&] { story.options.chkRunAuto.Value(1); });
  story.step("a tick of the clock", [&] { story.main.automatic.Timer_Tick(); });
  story.step("resized", [&] { story.main.Form_Resize(); });
  story.step("minimised", [&] {
    story.main.form.windowState = WindowState::Minimised;
    story.windows.of(faces::Main).resize();
  });
  story.step("asked for by the tray", [&] { story.main.ShowTab(2); });
  story.pressAll(faces::Main, {"cmdHelp", "cmdDownload", "cmdAbout", "cmdViewLog", "cmdIECookie", "cmdNSKeep",
                               "cmdEditOptions", "cmdAdvancedScheduler", "cmdAdd"});
  story.main.dated.txtDate.Text = "9/15/2001";
  story.main.dated.txtTime.Text = "10:20";
  story.pressAll(faces::Main, {"cmdAdd", "cmdAdd"});
  story.main.dated.lstSchedule.ListIndex(0);
  story.press(faces::Main, "cmdRemoveScheduled");
  pc.file(PluginFolder + "Alpha.zb1");
  story.step("two rows on", [&] {
    for (const int row : {0, 1}) story.options.lstFiles.Selected(row, true);
  });
  story.press(faces::Main, "cmdRefresh");
  story.options.lstFiles.ListIndex(1);
  story.press(faces::Main, "cmdRemovePlugin");
  story.press(faces::Main, "cmdPreview");
  story.press(faces::PreviewReport, "cmdCancel");
  story.pressAll(faces::Main, {"cmdPreview", "cmdPreview"});
  story.press(faces::Main, "cmdRemove");
  story.step("asked for in a wash", [&] { story.main.ShowTab(3); });
  story.pressAll(faces::Progress, {"cmdLog", "cmdFinish"});
  story.press(faces::Report, "cmdCancel");
  story.press(faces::Main, "cmdRemove");
  story.step("Windows is about to end", [&] { story.windows.of(faces::Main).queryEnd(); });
  story.options.chkRunShutDown.Value(1);
  story.press(faces::Progress, "cmdFinish");
  story.step("Windows is about to end, which is to wash", [&] { story.windows.of(faces::Main).queryEnd(); });
  story.step("Windows ends", [&] { story.windows.of(faces::Main).end(); });
  checkGolden("main-story.txt", story.text);
}

TEST_CASE("the editor and the about box show, tell and keep what a user does in them, as was approved") {
  Story story;
  TestPc& pc = story.windows.pc;
  frmPluginEditor::State& editor = story.windows.program.editor->state;
  const WindowSpec& window = story.windows.of(faces::Editor);
  CHECK(window.takesFocus() == nullptr);
  story.press(faces::Main, "cmdNewPlugin");
  CHECK(window.takesFocus() == &editor.txtName);
  CHECK(window.takesFocus() == nullptr);  // given once
  editor.txtName.Text = "Shop";
  story.pressAll(faces::Editor, {"cmdRegNew", "cmdRegistryAdd", "cmdFFNew", "cmdAddFF"});
  editor.txtPathFF.Text = "C:\\Shop";
  editor.txtFilePattern.Text = "*.tmp";
  story.pressAll(faces::Editor, {"optFilePattern", "cmdAddFF", "optFileName"});
  pc.folderPick = {true, "C:\\Picked"};
  story.pressAll(faces::Editor, {"cmdPathBrowse", "cmdApply", "cmdOK"});
  editor.txtPath.Text = "Software";
  editor.txtKeyValue.Text = "Shop";
  story.pressAll(faces::Editor, {"cmdRegistryAdd", "cmdOK"});
  story.options.lstFiles.ListIndex(0);
  story.press(faces::Main, "cmdEditOptions");
  editor.lstRegistry.ListIndex(0);
  editor.lstFileFolder.ListIndex(0);
  story.pressAll(faces::Editor, {"cmdRegRemove", "cmdFFRemove", "cmdCancel"});

  frmAbout& about = story.windows.about;
  const std::string information = Windows98 + "Shared Tools\\MSINFO";
  story.step("the about box is loaded", [&] {
    about.Form_Load();
    about.form.Show();
  });
  story.press(faces::About, "cmdSysInfo");
  pc.value(Windows98 + "Shared Tools Location", "MSINFO", "C:\\Tools");
  story.press(faces::About, "cmdSysInfo");
  pc.file("C:\\Tools\\MSINFO32.EXE");
  story.press(faces::About, "cmdSysInfo");
  pc.value(information, "PATH", "");
  story.press(faces::About, "cmdSysInfo");
  pc.value(information, "PATH", "D:\\nowhere\\info.exe");  // used as it stands
  story.pressAll(faces::About, {"cmdSysInfo", "cmdOK"});
  std::size_t version;
  while ((version = story.text.find(ZUB_VERSION)) != std::string::npos)
    story.text.replace(version, std::string_view(ZUB_VERSION).size(), "VERSION");
  checkGolden("small-story.txt", story.text);
}

TEST_CASE("the close box of every window, and Esc where it has a meaning, close it as was approved") {
  Story story;
  for (const WindowSpec& window : story.windows.all) {
    const std::string name(window.face.title);
    for (const auto& [what, act] : {std::pair{"Esc on ", window.escape}, {"close box of ", window.close}}) {
      if (!act || window.face == faces::Main) continue;  // which comes last
      if (window.form() == nullptr) story.windows.program.engine.animated->state.form.Show();
      window.form()->Show();
      story.screen.changes();
      story.step(what + name, act);
    }
  }
  story.step("close box of the main window", story.windows.of(faces::Main).close);
  checkGolden("close-story.txt", story.text);
}

TEST_CASE("a value is read as text, a number by the digits of its bytes") {
  Windows windows;
  const auto read = [&](std::string_view name) {
    std::string text = "before";
    const RegistryKey machine = windows.pc.platform().registry->hive(Hive::LocalMachine);
    const bool done = windows.about.GetKeyValue(machine, "SOFTWARE\\Microsoft\\Values", name, text);
    return (done ? "read " : "not ") + text;
  };
  CHECK(read("Text") == "not ");
  const std::string key = Windows98 + "Values";
  windows.pc.value(key, "Text", ValueType::Text, std::string("C:\\x\0y", 6));
  windows.pc.value(key, "Number", ValueType::Number, std::string("\x0A\x00\xF1\x02", 4));
  windows.pc.value(key, "Binary", ValueType::Binary, std::string("ab\0c", 4));
  windows.pc.value(key, "Full", ValueType::Text, std::string(1024, 'x'));
  windows.pc.value(key, "TooLong", ValueType::Text, std::string(1025, 'x'));
  CHECK(read("Text") == "read C:\\x");
  CHECK(read("Number") == "read &h2F10A");
  CHECK(read("Binary") == "read ab");
  CHECK(read("Full") == "read " + std::string(1024, 'x'));
  CHECK(read("TooLong") == "not ");
  CHECK(read("Missing") == "not ");
}
