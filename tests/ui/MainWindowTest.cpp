#include <doctest/doctest.h>

#include "settings/INIFile.h"
#include "support/WashFixture.h"
#include "ui/Windows.h"
#include "ui/frmMain.h"

using namespace zub;

namespace {

const std::string ProgramFolder = "C:\\Program Files\\Zubrane\\";
const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";
constexpr const char* HelpOfLoadStartUp = "Load with Windows Startup - ";

constexpr auto OnMain = &frmMain::lblHelp;
constexpr auto OnOptions = &frmMain::lblOptionsHelp;
constexpr auto OnScheduler = &frmMain::lblSchedulerHelp;

struct MainWindow : Windows {
  Options& options = program.options;
  frmMain& main = program.main;

  void plugin(const std::string& name) { pc.file(ProgramFolder + "Plugins\\" + name + ".zb1"); }
  void clearHelp() {
    for (Label frmMain::*label : {OnMain, OnOptions, OnScheduler}) {
      (main.*label).Caption = "none";
    }
  }
  std::string rows() const { return rowsOf(options.lstFiles); }
};

}  // namespace

TEST_CASE("every option, on or off, and every row explains itself on its own tab as was approved") {
  MainWindow window;
  std::string text, last;
  const auto tell = [&](const std::string& touched) {
    std::string help;
    for (Label frmMain::*label : {OnMain, OnOptions, OnScheduler}) {
      std::string& shown = (window.main.*label).Caption;
      const char* tab = label == OnMain ? "main" : label == OnOptions ? "options" : "scheduler";
      if (shown != "none") help += std::string(" ") + tab + ": " + shown;
      shown = "none";
    }
    text += touched + (!help.empty() && help == last ? ": as above" : ":" + help) + '\n';
    last = help;
  };
  tell("at first");
  window.main.SSTab1_Click();
  tell("another tab");
  for (const FlagName& flag : flagNames) {
    for (const int value : {1, 0}) {
      (window.options.*flag.option).Value(value);
      tell(std::string(flag.stored) + (value == 1 ? " on" : " off"));
    }
  }
  for (int row = 0; row < IconChecks::Count; ++row) {
    window.main.LstIcons_ClickSelect(row);
    const std::string name(iconNames[static_cast<std::size_t>(row)].stored);
    tell(name + " picked");
    window.main.LstIcons_ClickCheck(row);
    tell(name + " checked");
  }
  window.main.chkSelectAll.Value(1);
  tell("chkSelectAll");
  window.main.StandardPluginsSelectAll.Value(1);
  tell(window.main.lblStandardPluginDescription.Caption);
  checkGolden("help.txt", text);
}

TEST_CASE("running at the start of Windows needs loading there, and ends with the help of that") {
  MainWindow window;
  const std::string run = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  for (const char* twin : {"", "-"}) window.pc.key(run + twin);
  for (int time = 0; time < 2; ++time) {
    window.clearHelp();
    window.options.chkRunStarted.Value(1);
    CHECK(window.options.chkLoadStartUp.Value() == 1);
    CHECK(window.main.lblOptionsHelp.Caption.starts_with(HelpOfLoadStartUp));
    CHECK(window.pc.text(run, "Zubrane") == ProgramFolder + "zub.exe /STARTUP");
  }
  window.options.chkRunStarted.Value(0);
  CHECK(window.options.chkLoadStartUp.Value() == 1);
  CHECK(
      window.main.lblOptionsHelp.Caption.starts_with("This option will automatically run ZUB when Windows"));
  window.options.chkRunStarted.Value(1);
  window.options.chkLoadStartUp.Value(0);
  CHECK(window.options.chkRunStarted.Value() == 1);
  CHECK(window.pc.hasValue(run + "-", "Zubrane"));
  CHECK_FALSE(window.pc.hasValue(run, "Zubrane"));
}

TEST_CASE("a row of the icon list that is picked or checked shows its own group") {
  MainWindow window;
  for (const int row : {0, 5, 3, 5, 0, 9}) {
    CAPTURE(row);
    for (const auto touch : {&frmMain::LstIcons_ClickCheck, &frmMain::LstIcons_ClickSelect}) {
      (window.main.*touch)(row);
      CHECK(window.main.grpIE.Visible == (row == 0));
      CHECK(window.main.grpNS.Visible == (row == 5));
      window.main.grpIE.Visible = window.main.grpNS.Visible = row == 3;
    }
  }
}

TEST_CASE("the load leaves the help of the options it restored, and the groups as they were made") {
  MainWindow window;
  for (const char* name : {"chkNetscape", "chkRunStarted"}) window.pc.value(Store, name, "1");
  window.main.Form_Load();
  CHECK(window.main.lblHelp.Caption == "");
  CHECK(window.main.lblOptionsHelp.Caption.starts_with(HelpOfLoadStartUp));
  CHECK(window.options.chkLoadStartUp.Value() == 1);  // the store had it off
  CHECK(window.main.lblSchedulerHelp.Caption.starts_with("Automatic run - "));
  CHECK(window.main.automatic.lblTimerRemove.Caption == "Current time:");
  CHECK(window.options.LstIcons.Check(iconRow::Netscape) == 1);
  CHECK(window.main.grpIE.Visible);
  CHECK_FALSE(window.main.grpNS.Visible);
}

TEST_CASE("Select All ticks and unticks every row of its list, and does not follow the rows") {
  MainWindow window;
  struct {
    CheckOption& control;
    ListRows& rows;
    ListRows& others;
  } const lists[] = {
      {window.main.chkSelectAll, window.options.lstFiles, window.options.standardlist},
      {window.main.StandardPluginsSelectAll, window.options.standardlist, window.options.lstFiles}};
  for (const char* name : {"a", "b", "c"}) {
    for (const auto& list : lists) list.rows.AddItem(name);
  }
  Label& description = window.main.lblStandardPluginDescription;
  description.Caption = "It cleans b.";
  for (const auto& list : lists) {
    CHECK(description.Caption == "It cleans b.");
    list.control.Value(1);
    CHECK(list.rows.SelCount() == 3);
    CHECK(list.others.SelCount() == 0);
    list.rows.Selected(1, false);
    CHECK(list.control.Value() == 1);
    list.control.Value(0);
    CHECK(list.rows.SelCount() == 0);
  }
  CHECK(description.Caption != "It cleans b.");  // the standard plugins alone come with a warning
}

TEST_CASE("a minimised window goes to the tray, one that is only resized stays") {
  MainWindow window;
  window.main.form.Show();
  for (const WindowState state : {WindowState::Normal, WindowState::Minimised}) {
    window.main.form.windowState = state;
    window.main.Form_Resize();
    CHECK(window.main.form.Visible == (state == WindowState::Normal));
  }
}

TEST_CASE("buttons that only open something") {
  MainWindow window;
  const auto press = [&](const char* button) { window.press(layout::faces::Main, button); };
  press("cmdHelp");
  press("cmdDownload");
  CHECK(window.pc.opened == std::vector<std::string>{ProgramFolder + "help/Zubrane User Guide.htm",
                                                     ProgramFolder + "help/Plugins.htm"});
  press("cmdAbout");  // opens nothing on a PC without windows
  press("cmdViewLog");
  CHECK(window.program.engine.clean.form.Visible);
  press("cmdIECookie");
  CHECK((*window.program.ieCookies).form.Visible);
  press("cmdNSKeep");
  CHECK((*window.program.nsCookies).form.Visible);

  frmPluginEditor::State& editor = window.program.editor->state;
  window.options.lstFiles.AddItem("Shop");
  press("cmdEditOptions");  // opens nothing without a current row
  CHECK_FALSE(editor.form.Visible);
  window.options.lstFiles.ListIndex(0);
  press("cmdEditOptions");
  CHECK(editor.form.Visible);
  CHECK(editor.txtName.Text == "Shop");
}

TEST_CASE("Refresh reads the folder again and keeps the ticks; a new plugin comes up off") {
  MainWindow window;
  for (const char* name : {"Beta", "Gamma"}) window.plugin(name);
  window.main.Form_Load();
  window.options.lstFiles.Selected(1, true);
  window.options.chkSkipMessages.Value(1);
  window.plugin("Alpha");
  window.press(layout::faces::Main, "cmdRefresh");
  CHECK(window.rows() == "Alpha;Beta;*Gamma;");
  CHECK(window.pc.text(Store, "ZUBPlugin Alpha") == "0");
  CHECK(window.pc.text(Store, "ZUBPlugin Gamma") == "1");
  CHECK(window.pc.text(Store, "chkSkipMessages") == "1");  // all options are saved with it
  CHECK(window.options.chkSkipMessages.Value() == 1);
  CHECK(window.main.lblSchedulerHelp.Caption.starts_with("Automatic run - "));  // and all handlers run
}

TEST_CASE("removing a plugin unticks the others, which is what an exit then saves") {
  MainWindow window;
  for (const char* name : {"Alpha", "Beta", "Gamma"}) window.plugin(name);
  for (const char* name : {"ZUBPlugin Beta", "ZUBPlugin Gamma"}) window.pc.value(Store, name, "1");
  window.main.Form_Load();
  CHECK(window.rows() == "Alpha;*Beta;*Gamma;");
  window.options.lstFiles.ListIndex(1);
  window.press(layout::faces::Main, "cmdRemovePlugin");
  CHECK(window.rows() == "Alpha;Gamma;");
  CHECK(window.pc.messages.empty());
  CHECK_THROWS_AS(window.main.Unload(), EndOfProcess);
  CHECK(window.pc.text(Store, "ZUBPlugin Gamma") == "0");
  CHECK(window.pc.text(Store, "ZUBPlugin Beta") == "1");  // a later plugin of the name takes it over
}

TEST_CASE("ShowTab brings the window up unless a wash runs") {
  MainWindow window;
  window.press(layout::faces::Main, "cmdRemove");
  window.main.ShowTab(2);
  CHECK_FALSE(window.main.form.Visible);
  window.program.engine.animated->cmdFinish_Click();
  window.main.ShowTab(3);
  CHECK(window.main.form.Visible);
  CHECK(window.main.form.shown == 1);
}

TEST_CASE("a click on a standard plugin describes it") {
  MainWindow window;
  window.main.Form_Load();
  CHECK(window.main.lblStandardPluginDescription.Caption == "Please select a plugin to see the description");
  window.options.standardlist.ListIndex(1);
  CHECK(window.main.lblStandardPluginDescription.Caption ==
        window.program.catalogue.find(window.options.standardlist.List(1))->description);
}

TEST_CASE("the interval's controls plan the next wash") {
  MainWindow window;
  const auto next = [&] {
    return window.main.automatic.NextRemoval.wHour * 100 + window.main.automatic.NextRemoval.wMinute;
  };
  window.options.ComboInterval.type("Every 15 Minutes");
  CHECK(next() == 1035);
  window.options.ComboInterval.ListIndex(1);
  CHECK(next() == 1050);
  window.pc.now.wHour = 12;
  window.options.chkRunAuto.Value(1);
  CHECK(next() == 1250);
}
