#include "ui/frmMain.h"
#include "ui/layout/Bindings.h"

namespace zub::layout {

WindowBinding bindMain(frmMain& form) {
  Options& options = form.options;
  DatedEntries& dated = form.dated;
  const auto on = [&form](void (frmMain::*handler)()) { return [&form, handler] { (form.*handler)(); }; };
  const auto onDated = [&dated](void (DatedEntries::*handler)()) {
    return [&dated, handler] { (dated.*handler)(); };
  };
  WindowBinding main;
  main.window = &mainWindow;
  main.form = [&form] { return &form.form; };
  main.close = [&form] {
    form.QueryUnload(UnloadMode::ControlMenu);
    form.Unload();
  };
  main.resize = on(&frmMain::Form_Resize);
  main.queryEnd = [&form] { form.QueryUnload(UnloadMode::WindowsEnds); };
  main.end = on(&frmMain::Unload);
  main.takesFocus = [&dated] { return std::exchange(dated.focus, nullptr); };
  main.controls = {
      {"SSTab1", {}, on(&frmMain::SSTab1_Click)},

      {"LstIcons",
       IconListState{&options.LstIcons, [&form](int row) { form.LstIcons_ClickSelect(row); },
                     [&form](int row) { form.LstIcons_ClickCheck(row); }},
       {}},
      {"grpIE", &form.grpIE, {}},
      {"chkIECache", &options.chkIECache, {}},
      {"chkIECookies", &options.chkIECookies, {}},
      {"chkIEIndex", &options.chkIEIndex, {}},
      {"chkIEAutocomplete", &options.chkIEAutocomplete, {}},
      {"chkIEProgram", &options.chkIEProgram, {}},
      {"cmdIECookie", {}, on(&frmMain::cmdIECookie_Click)},
      {"grpNS", &form.grpNS, {}},
      {"chkNSCache", &options.chkNSCache, {}},
      {"chkNSCookies", &options.chkNSCookies, {}},
      {"chkNSHistory", &options.chkNSHistory, {}},
      {"chkNSMail", &options.chkNSMail, {}},
      {"cmdNSKeep", {}, on(&frmMain::cmdNSKeep_Click)},
      {"lblHelp", &form.lblHelp, {}},
      {"lblTimerRemove", &form.automatic.lblTimerRemove, {}},
      {"Clock", &form.automatic.display, {}},
      {"lblLastRemoval", &options.lblLastRemoval, {}},

      {"lstFiles", &options.lstFiles, {}},
      {"cmdNewPlugin", {}, on(&frmMain::cmdNewPlugin_Click)},
      {"cmdEditOptions", {}, on(&frmMain::cmdEditOptions_Click)},
      {"cmdRemovePlugin", {}, on(&frmMain::cmdRemovePlugin_Click)},
      {"cmdRefresh", {}, on(&frmMain::cmdRefresh_Click)},
      {"cmdDownload", {}, on(&frmMain::cmdDownload_Click)},
      {"chkSelectAll", &form.chkSelectAll, {}},

      {"chkSkipMessages", &options.chkSkipMessages, {}},
      {"chkSkipPlugins", &options.chkSkipPlugins, {}},
      {"chkCloseAfterWash", &options.chkCloseAfterWash, {}},
      {"chkLoadStartUp", &options.chkLoadStartUp, {}},
      {"chkBleach", &options.chkBleach, {}},
      {"cmbShredder", &options.cmbShredder, {}},
      {"chkRunStarted", &options.chkRunStarted, {}},
      {"chkRunShutDown", &options.chkRunShutDown, {}},
      {"lblOptionsHelp", &form.lblOptionsHelp, {}},

      {"lstSchedule", &dated.lstSchedule, {}},
      {"cmdRemoveScheduled", {}, onDated(&DatedEntries::cmdRemoveScheduled_Click)},
      {"cmdAdvancedScheduler", {}, onDated(&DatedEntries::cmdAdvancedScheduler_Click)},
      {"txtDate", &dated.txtDate, {}},
      {"txtTime", &dated.txtTime, {}},
      {"cmdAdd", {}, onDated(&DatedEntries::cmdAdd_Click)},
      {"chkRunAuto", &options.chkRunAuto, {}},
      {"ComboInterval", &options.ComboInterval, {}},
      {"lblSchedulerHelp", &form.lblSchedulerHelp, {}},

      {"standardlist", &options.standardlist, {}},
      {"StandardPluginsSelectAll", &form.StandardPluginsSelectAll, {}},
      {"lblStandardPluginDescription", &form.lblStandardPluginDescription, {}},

      {"cmdRemove", {}, on(&frmMain::cmdRemove_Click)},
      {"cmdViewLog", &form.cmdViewLog, on(&frmMain::cmdViewLog_Click)},
      {"cmdHelp", {}, on(&frmMain::cmdHelp_Click)},
      {"cmdAbout", {}, on(&frmMain::cmdAbout_Click)},
  };
  return main;
}

}  // namespace zub::layout
