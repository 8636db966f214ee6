#include <doctest/doctest.h>

#include "base/Text.h"
#include "support/WashFixture.h"
#include "ui/frmMain.h"

using namespace zub;

namespace {

const std::string ProgramFolder = "C:\\Program Files\\Zubrane\\";
const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";
constexpr const char* HelpOfLoadStartUp =
    "Load with Windows Startup - This option will cause ZUB to load and run minimized in the system tray "
    "whenever Windows loads. Check this option if you have ZUB scheduler set to clean automatically at "
    "specified intervals. If ZUB is not running, it will not perform any automatic cleaning.";

constexpr auto OnMain = &frmMain::lblHelp;
constexpr auto OnOptions = &frmMain::lblOptionsHelp;
constexpr auto OnScheduler = &frmMain::lblSchedulerHelp;

struct MainWindow : WashFixture {
  Catalogue catalogue = Catalogue::parse(
      "[b row]\nabout It cleans b.\ntrace HKEY_USERS\\b- Key*\n"
      "[A row]\nabout It cleans a.\ntrace HKEY_USERS\\a- Key*\n");
  FirstUse<Plugins> plugins{[this] { return std::make_unique<Plugins>(engine); }};
  FirstUse<frmIECookieKeep> ieCookies{[this] { return std::make_unique<frmIECookieKeep>(engine); }};
  FirstUse<frmNSCookieKeep> nsCookies{[this] { return std::make_unique<frmNSCookieKeep>(engine); }};
  FirstUse<frmPluginEditor> editor{[this] { return std::make_unique<frmPluginEditor>(engine, plugins); }};
  frmIcon icon;
  frmMain main{{engine, plugins, catalogue, editor, ieCookies, nsCookies, icon}};

  void plugin(const std::string& name) { pc.file(ProgramFolder + "Plugins\\" + name + ".zb1"); }
  void clearHelp() {
    for (Label frmMain::*label : {OnMain, OnOptions, OnScheduler}) {
      (main.*label).Caption = "-";
    }
  }
  std::string rows() const {
    std::string text;
    for (int row = 0; row < options.lstFiles.ListCount(); ++row) {
      text += (options.lstFiles.Selected(row) ? "*" : "") + options.lstFiles.List(row) + ";";
    }
    return text;
  }
};

// A whole text, or its two ends with "~" between.
bool matches(std::string_view text, std::string_view expected) {
  const auto gap = expected.find('~');
  if (gap == std::string_view::npos) return text == expected;
  return text.size() >= expected.size() && text.starts_with(expected.substr(0, gap)) &&
         text.ends_with(expected.substr(gap + 1));
}

}  // namespace

TEST_CASE("a click on an option, on or off, puts its help on its own tab alone") {
  struct {
    CheckOption Options::*option;
    Label frmMain::*label;
    const char* text;
  } const rows[] = {
      {&Options::chkBleach, OnOptions,
       "Use shredder - This option instructs ZUB to shred~the NSA approved seven-pass file erasure method."},
      {&Options::chkCloseAfterWash, OnOptions, "Close after Wash - This option~unless it is re-started."},
      {&Options::chkLoadStartUp, OnOptions, HelpOfLoadStartUp},
      {&Options::chkSkipMessages, OnOptions, "Show pop-up error messages - When~when any errors occur."},
      {&Options::chkSkipPlugins, OnOptions,
       "Do not use plugins - This option will instruct ZUB to skip all the Custom plugin-Items while "
       "cleaning."},
      {&Options::chkIEAutocomplete, OnMain,
       "IE Auto Complete Data - Internet~all IE 5+ auto complete form data."},
      {&Options::chkIECache, OnMain, "IE Cache - Choose this option to clean the Internet Explorer cache."},
      {&Options::chkIECookies, OnMain,
       "IE Cookies - Choose~if you don't want to delete all of your IE cookies."},
      {&Options::chkIEIndex, OnMain, "IE Index.dat - Choose~History and Address Bar for Internet Explorer."},
      {&Options::chkIEProgram, OnMain, "IE Downloaded Programs - Internet~option to clean this directory."},
      {&Options::chkNSCache, OnMain, "Netscape Cache - Choose this option to clean the netscape cache."},
      {&Options::chkNSCookies, OnMain, "Netscape Cookies - Choose~delete all of your netscape cookies."},
      {&Options::chkNSHistory, OnMain, "Netscape History - Choose this option to clean netscape's history."},
      {&Options::chkNSMail, OnMain, "Netscape Mail - Choose this option to clean netscape's mail-box trash."},
      {&Options::chkRunAuto, OnScheduler,
       "Automatic run - Using~clean your items automatically at that time."},
  };
  CHECK(optionHelp().size() == std::size(rows) + 1);  // and chkRunStarted, which has a test of its own
  MainWindow window;
  for (const auto& row : rows) {
    for (const int value : {1, 0}) {
      window.clearHelp();
      (window.options.*row.option).Value(value);
      for (Label frmMain::*label : {OnMain, OnOptions, OnScheduler}) {
        const std::string& shown = (window.main.*label).Caption;
        CAPTURE(shown);
        CHECK(matches(shown, label == row.label ? row.text : "-"));
      }
    }
  }
  window.clearHelp();
  window.options.chkRunShutDown.Value(1);
  window.main.chkSelectAll.Value(1);
  window.main.StandardPluginsSelectAll.Value(1);
  CHECK(window.main.lblHelp.Caption + window.main.lblOptionsHelp.Caption == "--");
}

TEST_CASE("running at the start of Windows needs loading there, and ends with the help of that") {
  MainWindow window;
  const std::string run = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  for (const char* twin : {"", "-"}) window.pc.key(run + twin);
  for (int time = 0; time < 2; ++time) {
    window.clearHelp();
    window.options.chkRunStarted.Value(1);
    CHECK(window.options.chkLoadStartUp.Value() == 1);
    CHECK(window.main.lblOptionsHelp.Caption == HelpOfLoadStartUp);
    CHECK(window.pc.text(run, "Zubrane") == ProgramFolder + "zub.exe /STARTUP");
  }
  window.options.chkRunStarted.Value(0);
  CHECK(window.options.chkLoadStartUp.Value() == 1);
  CHECK(
      window.main.lblOptionsHelp.Caption ==
      "This option will automatically run ZUB when Windows is started and will start the cleaning process.");
  window.options.chkRunStarted.Value(1);
  window.options.chkLoadStartUp.Value(0);
  CHECK(window.options.chkRunStarted.Value() == 1);
  CHECK(window.pc.hasValue(run + "-", "Zubrane"));
  CHECK_FALSE(window.pc.hasValue(run, "Zubrane"));
}

TEST_CASE("a row of the icon list that is picked or checked explains itself and shows its own group") {
  struct {
    const char* picked;
    const char* checked;  // where it reads differently
  } const rows[] = {
      {"Internet Explorer (IE) - Check this option~you can click the manage button below.", nullptr},
      {"Windows Media Player - This option to remove the (Most~items in the MRU are removed.", nullptr},
      {"MS-Office - This option to remove the (Most~items in the MRU are removed.",
       "MS-Office - This option removes the (Most~items in the MRU are removed."},
      {"Recycle Bin - Choose this option to remove all of the files that are contained in the Recycle Bin. "
       "This "
       "removes all the Recycle Bins on all drives on your computer (including any network drives that you "
       "have "
       "mapped).",
       nullptr},
      {"Scan Disk Temporary Files - Windows Scan Disk~(if they exist) for you.", nullptr},
      {"Netscape - Choose this Option to remove Netscape~NOTE: Netscape need to be closed before ZUB can "
       "clean "
       "the netscape history items.",
       "Netscape - This Option removes Netscape~NOTE: Netscape needs to be closed before ZUB can clean the "
       "netscape history items."},
      {"Run History - This option removes~the Run menu item (Start | Run)", nullptr},
      {"Recent History - This option removes~(Start | Documents).", nullptr},
      {"Temporary Files - This option~Ex: (C:\\windows\\temp). The Windows temporary directory stores "
       "temporary "
       "files that are used during installation of programs and at other various times.",
       nullptr},
      {"Search History - This option removes~(Start | Find | Files/Folders)", nullptr},
  };
  MainWindow window;
  CHECK(window.main.grpIE.Visible);
  CHECK_FALSE(window.main.grpNS.Visible);
  for (const int row : {0, 5, 3, 5, 0, 1, 2, 4, 6, 7, 8, 9, 0, 9}) {
    for (const bool checked : {true, false}) {
      CAPTURE(row);
      CAPTURE(checked);
      const auto& texts = rows[static_cast<std::size_t>(row)];
      checked ? window.main.LstIcons_ClickCheck(row) : window.main.LstIcons_ClickSelect(row);
      CHECK(matches(window.main.lblHelp.Caption, checked && texts.checked ? texts.checked : texts.picked));
      CHECK(window.main.grpIE.Visible == (row == 0));
      CHECK(window.main.grpNS.Visible == (row == 5));
    }
  }
}

TEST_CASE("a change of the tab asks for a click on all three help labels") {
  MainWindow window;
  CHECK(window.main.lblHelp.Caption.starts_with("Please select the items you need cleaned.  If you"));
  CHECK(window.main.lblOptionsHelp.Caption.starts_with("Click on the checkbox next to the options"));
  CHECK(window.main.lblSchedulerHelp.Caption.starts_with("The scheduler helps set times and dates"));
  window.main.SSTab1_Click();
  for (Label frmMain::*label : {OnMain, OnOptions, OnScheduler}) {
    CHECK((window.main.*label).Caption == "Click on the item you need help with!");
    CHECK((window.main.*label).ForeColor == 0x400040);
  }
}

TEST_CASE("the load leaves the help of the options it restored, and the groups as they were made") {
  MainWindow window;
  for (const char* name : {"chkNetscape", "chkRunStarted"}) window.pc.value(Store, name, "1");
  window.main.Form_Load();
  CHECK(window.main.lblHelp.Caption == "");
  CHECK(window.main.lblOptionsHelp.Caption == HelpOfLoadStartUp);
  CHECK(window.main.lblSchedulerHelp.Caption.starts_with("Automatic run - "));
  CHECK(window.main.automatic.lblTimerRemove.Caption == "Current time:");
  CHECK(window.options.LstIcons.Check(iconRow::Netscape) == 1);
  CHECK(window.main.grpIE.Visible);
  CHECK_FALSE(window.main.grpNS.Visible);
  CHECK(window.main.form.Visible);
}

TEST_CASE("Select All ticks and unticks every row, and does not follow the rows") {
  MainWindow window;
  struct {
    CheckOption& control;
    ListRows& rows;
    ListRows& others;
  } const lists[] = {
      {window.main.chkSelectAll, window.options.lstFiles, window.options.standardlist},
      {window.main.StandardPluginsSelectAll, window.options.standardlist, window.options.lstFiles}};
  for (const auto& list : lists) {
    list.control.Value(1);  // of an empty list
    list.control.Value(0);
  }
  for (const auto& list : lists) {
    for (const char* name : {"a", "b", "c"}) list.rows.AddItem(name);
  }
  for (const auto& list : lists) {
    list.control.Value(1);
    CHECK(list.rows.SelCount() == 3);
    CHECK(list.others.SelCount() == 0);
    list.rows.Selected(1, false);
    CHECK(list.control.Value() == 1);
    list.control.Value(0);
    CHECK(list.rows.SelCount() == 0);
  }
}

TEST_CASE("a minimised window goes to the tray, one that is only resized stays") {
  MainWindow window;
  window.main.form.Show();
  window.main.Form_Resize();
  CHECK(window.main.form.Visible);
  window.main.form.windowState = WindowState::Minimised;
  window.main.Form_Resize();
  CHECK_FALSE(window.main.form.Visible);
  window.main.form.windowState = WindowState::Normal;
  window.main.Form_Resize();
  CHECK_FALSE(window.main.form.Visible);
}

TEST_CASE("buttons that only open something") {
  MainWindow window;
  window.main.cmdHelp_Click();
  window.main.cmdDownload_Click();
  CHECK(window.pc.opened == std::vector<std::string>{ProgramFolder + "help/Zubrane User Guide.htm",
                                                     ProgramFolder + "help/Plugins.htm"});
  window.main.cmdAbout_Click();  // opens nothing on a PC without windows
  bool about = false;
  window.main.showAbout = [&about] { about = true; };
  window.main.cmdAbout_Click();
  CHECK(about);
  window.main.cmdViewLog_Click();
  CHECK(window.engine.clean.form.Visible);
  window.main.cmdIECookie_Click();
  CHECK((*window.ieCookies).form.Visible);
  window.main.cmdNSKeep_Click();
  CHECK((*window.nsCookies).form.Visible);
}

TEST_CASE("the editor opens on the current row, and without one not at all") {
  MainWindow window;
  window.plugin("Shop");
  window.main.Form_Load();
  window.main.cmdEditOptions_Click();
  CHECK_FALSE(window.editor->state.form.Visible);
  window.options.lstFiles.ListIndex(0);
  window.main.cmdEditOptions_Click();
  CHECK(window.editor->state.form.Visible);
  CHECK(window.editor->state.txtName.Text == "Shop");
}

TEST_CASE("Refresh reads the folder again and keeps the ticks; a new plugin comes up off") {
  MainWindow window;
  for (const char* name : {"Beta", "Gamma"}) window.plugin(name);
  window.main.Form_Load();
  window.options.lstFiles.Selected(1, true);
  window.options.chkSkipMessages.Value(1);
  window.plugin("Alpha");
  window.main.cmdRefresh_Click();
  CHECK(window.rows() == "Alpha;Beta;*Gamma;");
  CHECK(window.pc.text(Store, "ZUBPlugin Alpha") == "0");
  CHECK(window.pc.text(Store, "ZUBPlugin Gamma") == "1");
  CHECK(window.pc.text(Store, "chkSkipMessages") == "1");  // all options are saved with it
  CHECK(window.options.chkSkipMessages.Value() == 1);
  CHECK(window.main.lblSchedulerHelp.Caption.starts_with("Automatic run - "));  // and all handlers run
}

TEST_CASE("removing a plugin unticks the others, which is what an exit then saves") {
  for (const bool refreshed : {false, true}) {
    MainWindow window;
    for (const char* name : {"Alpha", "Beta", "Gamma"}) window.plugin(name);
    for (const char* name : {"ZUBPlugin Beta", "ZUBPlugin Gamma"}) window.pc.value(Store, name, "1");
    window.main.Form_Load();
    CHECK(window.rows() == "Alpha;*Beta;*Gamma;");
    window.options.lstFiles.ListIndex(1);
    window.main.cmdRemovePlugin_Click();
    CHECK(window.rows() == "Alpha;Gamma;");
    CHECK_FALSE(window.pc.hasFile(ProgramFolder + "Plugins\\Beta.zb1"));
    CHECK(window.pc.messages.empty());
    if (refreshed) window.main.RefreshPlugins();  // saves what the rows show now
    CHECK_THROWS_AS(window.main.Unload(), EndOfProcess);
    CHECK(window.pc.text(Store, "ZUBPlugin Gamma") == "0");
    CHECK(window.pc.text(Store, "ZUBPlugin Beta") == "1");  // a later plugin of the name takes it over
  }
}

TEST_CASE("ShowTab brings the window up unless a wash runs") {
  MainWindow window;
  window.main.cmdRemove_Click();
  window.main.ShowTab(2);
  CHECK_FALSE(window.main.form.Visible);
  window.engine.animated->cmdFinish_Click();
  window.main.ShowTab(3);
  CHECK(window.main.form.Visible);
  CHECK(window.main.form.shown == 1);
}

TEST_CASE("a click on a standard plugin describes it") {
  MainWindow window;
  window.main.Form_Load();
  CHECK(window.main.lblStandardPluginDescription.Caption == "Please select a plugin to see the description");
  window.options.standardlist.ListIndex(0);
  CHECK(window.main.lblStandardPluginDescription.Caption == "It cleans a.");
  window.options.standardlist.ListIndex(1);
  CHECK(window.main.lblStandardPluginDescription.Caption == "It cleans b.");
}

TEST_CASE("the interval's controls plan the next wash") {
  MainWindow window;
  const SystemTime& next = window.main.automatic.NextRemoval;
  window.options.ComboInterval.type("Every 15 Minutes");
  CHECK(std::pair<int, int>{next.wHour, next.wMinute} == std::pair{10, 35});
  window.options.ComboInterval.ListIndex(1);
  CHECK(std::pair<int, int>{next.wHour, next.wMinute} == std::pair{10, 50});
  window.pc.now.wHour = 12;
  window.options.chkRunAuto.Value(1);
  CHECK(std::pair<int, int>{next.wHour, next.wMinute} == std::pair{12, 50});
  CHECK(window.main.automatic.lblTimerRemove.Caption == "Next auto track removal at:");
}
