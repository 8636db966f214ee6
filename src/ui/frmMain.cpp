#include "ui/frmMain.h"

#include "base/Text.h"
#include "plugins/StandardList.h"
#include "settings/INIFile.h"
#include "settings/WindowsStartup.h"

namespace zub {
namespace {

constexpr std::string_view applicationTitle = "Zubrane";
constexpr std::string_view userGuide = "help/Zubrane User Guide.htm";
constexpr std::string_view pluginHelp = "help/Plugins.htm";
constexpr std::string_view pluginPage = ZUB_PLUGIN_PAGE;  // a setting of the build

constexpr std::string_view allSelectedWarning =
    "All plugins are selected. Some remove more than lists of recent names: Outlook Express loses ALL its "
    "mail folders and news groups. Click on a plugin to see what it cleans, and take away those that you do "
    "not want.";

void selectAllAs(const CheckOption& control, ListRows& rows) {
  if (control.Value() == 0 || control.Value() == 1) rows.selectAll(control.Value() == 1);
}

}  // namespace

frmMain::frmMain(const MainParts& parts)
    : options(parts.engine.options),
      automatic(*parts.engine.pc.clock, options),
      dated(parts.engine.pc, parts.engine.userFunctions),
      parts_(parts),
      engine_(parts.engine) {
  lblHelp.Caption =
      "Please select the items you need cleaned.  If you are not sure what to select, please see the help "
      "manual for more details on each selection.";
  lblOptionsHelp.Caption =
      "Click on the checkbox next to the options you want to use! For more information, please see the help "
      "manuals.";
  lblSchedulerHelp.Caption =
      "The scheduler helps set times and dates for the track removal to automatically run. Please see the "
      "help "
      "manual for more details.";
  for (Label* label : {&lblHelp, &lblOptionsHelp, &lblSchedulerHelp}) label->ForeColor = 0x400040;
  engine_.owner = this;
  automatic.startWash = [this] { cmdRemove_Click(); };
  parts_.icon.windows = {
      {frmIcon::MainWindow, [this]() -> Form& { return form; }},
      {frmIcon::ProgressWindow, [this]() -> Form& { return engine_.animated->state.form; }},
      {frmIcon::ReportWindow, [this]() -> Form& { return engine_.clean.form; }},
      {frmIcon::CookieWindow, [this]() -> Form& { return (*parts_.ieCookies).form; }},
  };
  parts_.icon.Press_Clean = [this] { Press_Clean(); };
  parts_.icon.unloadMain = [this] { Unload(); };
  wireOptions();
}

void frmMain::wireOptions() {
  for (const OptionHelp& help : optionHelp()) {
    (options.*help.option).Click = [this, &help] {
      CheckOption& option = options.*help.option;
      if (&option == &options.chkRunAuto) automatic.chkRunAuto_Click();
      if (&option == &options.chkLoadStartUp) writeStartupEntry();
      helpLabel(help.label).Caption = help.text;
      // Starting a wash with Windows needs the program to start with Windows.
      if (&option == &options.chkRunStarted && option.Value() == 1) options.chkLoadStartUp.Value(1);
    };
  }
  options.ComboInterval.Click = [this] { automatic.SetNextRemovalTime(); };
  options.ComboInterval.Change = [this] { automatic.SetNextRemovalTime(); };
  options.standardlist.Click = [this] { standardlist_Click(); };
  chkSelectAll.Click = [this] { selectAllAs(chkSelectAll, options.lstFiles); };
  StandardPluginsSelectAll.Click = [this] {
    selectAllAs(StandardPluginsSelectAll, options.standardlist);
    if (StandardPluginsSelectAll.Value() == 1) lblStandardPluginDescription.Caption = allSelectedWarning;
  };
}

Label& frmMain::helpLabel(HelpLabel which) {
  if (which == HelpLabel::Options) return lblOptionsHelp;
  return which == HelpLabel::Scheduler ? lblSchedulerHelp : lblHelp;
}

void frmMain::writeStartupEntry() {
  WindowsStartup startup(*engine_.pc.registry);
  const std::string command = startupCommand(*engine_.pc.folders);
  if (options.chkLoadStartUp.Value() == 1) {
    startup.AddStartupEntry(command, applicationTitle);
  } else {
    startup.RemoveStartupEntry(command, applicationTitle);
  }
}

void frmMain::Form_Load() {
  RefreshPluginList();
  const bool hidden = ApplyStartMode();
  dated.InitSchedulerTab();
  lblHelp.Caption.clear();
  FillStandardList();
  if (!hidden) form.Show();
}

bool frmMain::ApplyStartMode() {
  INIFile(engine_.pc, options).GetInfo();
  if (engine_.pc.process->otherInstanceRuns()) Unload();
  const std::string commandLine = engine_.pc.process->commandLine();
  engine_.pc.tray->add(frmIcon::szTip);
  parts_.icon.SetTopForm(frmIcon::MainWindow);

  const bool withWindows = contains(commandLine, "/STARTUP");
  const bool scheduled = contains(commandLine, "/SCHEDULER");
  if (withWindows) {
    form.Visible = false;
    if (options.chkRunStarted.Value() == 1) cmdRemove_Click();
  }
  if (scheduled) {
    form.Visible = false;
    cmdRemove_Click();
  }
  return withWindows || scheduled;
}

void frmMain::FillStandardList() {
  listStandardPlugins(options.standardlist, parts_.catalogue);
  INIFile(engine_.pc, options).GetInfo2();
}

void frmMain::cmdRemove_Click() {
  preview.close();
  cmdViewLog.Visible = true;
  WasVisible = form.Visible;
  if (form.Visible) {
    form.Visible = false;
    form.Enabled = false;
  }
  parts_.icon.mnuRemove.Enabled = false;
  parts_.icon.SetTopForm(frmIcon::ProgressWindow);
  engine_.animated->StartClean();
}

void frmMain::cmdPreview_Click() {
  if (preview.form.Visible) return preview.form.Show();
  form.Enabled = false;
  raise(runPreview);
  form.Enabled = true;
}

void frmMain::FinishedCleaning() {
  parts_.icon.SetTopForm(frmIcon::MainWindow);
  form.Enabled = true;
  form.Visible = WasVisible;
  if (form.Visible) form.Show();
  parts_.icon.mnuRemove.Enabled = true;
  automatic.timer.Enabled = true;
}

void frmMain::QueryUnload(UnloadMode mode) {
  if (options.chkRunShutDown.Value() == 1 && mode == UnloadMode::WindowsEnds) cmdRemove_Click();
}

void frmMain::Unload() {
  INIFile(engine_.pc, options).PutInfo();
  engine_.pc.tray->remove();
  engine_.pc.process->end();
}

void frmMain::Form_Resize() {
  if (form.windowState == WindowState::Minimised) form.Hide();
}

void frmMain::RefreshPluginList() {
  parts_.plugins->RefreshPluginList();
}

void frmMain::RefreshPlugins() {
  INIFile store(engine_.pc, options);
  store.PutInfo();
  RefreshPluginList();
  store.GetInfo();
}

void frmMain::ShowTab(int) {
  if (parts_.icon.SetTopForm() == frmIcon::MainWindow) form.Show();
}

void frmMain::SSTab1_Click() {
  for (Label* label : {&lblHelp, &lblOptionsHelp, &lblSchedulerHelp}) {
    label->Caption = "Click on the item you need help with!";
  }
}

void frmMain::LstIcons_ClickSelect(int row) {
  rowTouched(row, helpOfPickedRow(row));
}

void frmMain::LstIcons_ClickCheck(int row) {
  rowTouched(row, helpOfCheckedRow(row));
}

void frmMain::rowTouched(int row, std::string_view text) {
  grpIE.Visible = row == iconRow::InternetExplorer;
  grpNS.Visible = row == iconRow::Netscape;
  lblHelp.Caption = text;
}

void frmMain::cmdHelp_Click() {
  engine_.pc.shell->open(JoinPath(engine_.pc.folders->programFolder(), userGuide));
}

void frmMain::cmdDownload_Click() {
  engine_.pc.shell->open(pluginPage.empty() ? JoinPath(engine_.pc.folders->programFolder(), pluginHelp)
                                            : std::string(pluginPage));
}

void frmMain::cmdEditOptions_Click() {
  const std::string name = options.lstFiles.Text();
  if (!name.empty()) parts_.editor->ShowPlugin(name);
}

void frmMain::standardlist_Click() {
  lblStandardPluginDescription.Caption =
      standardPluginDescription(parts_.catalogue, options.standardlist.Text());
}

}  // namespace zub
