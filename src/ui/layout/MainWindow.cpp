#include "ui/frmMain.h"
#include "ui/layout/Rows.h"

namespace zub::layout {
namespace {

constexpr Place Page = px(8, 32, 439, 336);

Controls controls(frmMain& form) {
  Options& options = form.options;
  DatedEntries& dated = form.dated;
  const auto on = [&form](void (frmMain::*handler)()) { return layout::on(form, handler); };
  const auto onDated = [&dated](void (DatedEntries::*handler)()) { return layout::on(dated, handler); };
  return {
      tabs("SSTab1", px(8, 8, 439, 24), on(&frmMain::SSTab1_Click)),
      page("Main", Page,
           {iconList("LstIcons", px(16, 12, 407, 75),
                     IconListState{&options.LstIcons, [&form](int row) { form.LstIcons_ClickSelect(row); },
                                   [&form](int row) { form.LstIcons_ClickCheck(row); }}),
            group("grpIE", px(16, 96, 407, 82), form.grpIE,
                  {check("chkIECache", px(6, 18, 124, 20), "Cache", "Clean IE cache", options.chkIECache),
                   check("chkIEIndex", px(138, 18, 144, 20), "Index.dat",
                         "Clean IE index.dat temporary files", options.chkIEIndex),
                   check("chkIECookies", px(288, 18, 110, 20), "Cookies", "Clean IE cookies",
                         options.chkIECookies),
                   check("chkIEAutocomplete", px(6, 48, 128, 20), "Autocomplete Data",
                         "Clean IE autocomplete data", options.chkIEAutocomplete),
                   check("chkIEProgram", px(138, 48, 144, 20), "Downloaded Programs",
                         "Remove IE temporary downloaded files", options.chkIEProgram),
                   button("cmdIECookie", px(294, 46, 96, 24), "Manage", "Manage which IE cookies to keep",
                          on(&frmMain::cmdIECookie_Click))}),
            group(
                "grpNS", px(16, 96, 407, 82), form.grpNS,
                {check("chkNSCache", px(6, 18, 124, 20), "Cache", "Clean Netscape cache", options.chkNSCache),
                 check("chkNSHistory", px(138, 18, 144, 20), "History", "Clean Netscape history",
                       options.chkNSHistory),
                 check("chkNSCookies", px(288, 18, 110, 20), "Cookies", "Clean Netscape cookies",
                       options.chkNSCookies),
                 check("chkNSMail", px(6, 48, 128, 20), "Mail", "Clean Netscape mail trash",
                       options.chkNSMail),
                 button("cmdNSKeep", px(294, 46, 96, 24), "Manage", "Manage which netscape cookies to keep",
                        on(&frmMain::cmdNSKeep_Click))}),
            label("lblHelp", px(18, 188, 403, 84), form.lblHelp, Text::Help),
            label("lblTimerRemove", px(18, 286, 148, 14), form.automatic.lblTimerRemove),
            clock("Clock", px(170, 279, 70, 28), form.automatic.display),
            label("lblLastRemoval", px(18, 313, 403, 14), options.lblLastRemoval)}),
      page("Custom Plugins", Page,
           {checkList("lstFiles", px(16, 12, 248, 310), options.lstFiles),
            group("frmPlugins", px(276, 6, 147, 316), "Plugins",
                  {button("cmdNewPlugin", px(12, 24, 123, 26), "Create A New Plugin", "Make a new plugin",
                          on(&frmMain::cmdNewPlugin_Click)),
                   button("cmdEditOptions", px(12, 58, 123, 26), "Edit Plugin", "Edit the selected plugin",
                          on(&frmMain::cmdEditOptions_Click)),
                   button("cmdRemovePlugin", px(12, 92, 123, 26), "Remove", "Remove selected plugin",
                          on(&frmMain::cmdRemovePlugin_Click)),
                   button("cmdRefresh", px(12, 126, 123, 26), "Refresh", "Refresh plugin list",
                          on(&frmMain::cmdRefresh_Click)),
                   button("cmdDownload", px(12, 160, 123, 26), "Download Plugins", "Download new plugins",
                          on(&frmMain::cmdDownload_Click)),
                   check("chkSelectAll", px(6, 196, 129, 20), "Select All", "Select / De-select all plugins",
                         form.chkSelectAll)})}),
      page("Options", Page,
           {group("grpRemoveOptions", px(16, 8, 200, 144), "Removal Options",
                  {check("chkSkipMessages", px(6, 22, 188, 20), "Show pop-up error messages",
                         "Allow error popup messages to appear", options.chkSkipMessages),
                   check("chkSkipPlugins", px(6, 52, 188, 20), "Do not use plugins",
                         "Do not use any custom plugin", options.chkSkipPlugins),
                   check("chkCloseAfterWash", px(6, 82, 188, 20), "Close after cleaning",
                         "Close ZUB after cleaning", options.chkCloseAfterWash),
                   check("chkLoadStartUp", px(6, 112, 188, 20), "Load with windows startup",
                         "Run ZUB with windows startup", options.chkLoadStartUp)}),
            group("frmShredder", px(224, 8, 199, 74), "Shredder",
                  {check("chkBleach", px(6, 18, 180, 20), "Use shredder",
                         "Use shredder when removing files or folders", options.chkBleach),
                   label("lblShredder", px(12, 47, 134, 14), "No of times to shred a file"),
                   dropDown("cmbShredder", px(148, 43, 40, 22), "Number of times to shred the file/folder",
                            options.cmbShredder)}),
            group("xpgroupbox1", px(224, 86, 199, 66), "Windows",
                  {label("lblAutoWash", px(12, 20, 180, 14), "Remove all traces when windows"),
                   check("chkRunStarted", px(6, 38, 88, 20), "Starts",
                         "Run ZUB with windows startup and run cleaning process", options.chkRunStarted),
                   check("chkRunShutDown", px(98, 38, 96, 20), "ShutDown", "", options.chkRunShutDown)}),
            label("lblOptionsHelp", px(18, 164, 403, 160), form.lblOptionsHelp, Text::Help)}),
      page("Scheduler", Page,
           {list("lstSchedule", px(16, 12, 407, 92), dated.lstSchedule),
            button("cmdRemoveScheduled", px(16, 112, 96, 26), "&Remove", "",
                   onDated(&DatedEntries::cmdRemoveScheduled_Click)),
            button("cmdAdvancedScheduler", px(327, 112, 96, 26), "Advanced", "",
                   onDated(&DatedEntries::cmdAdvancedScheduler_Click)),
            group("grpAddItem", px(16, 144, 199, 108), "Add Item",
                  {label("lblDate", px(12, 24, 42, 14), "Date:"),
                   edit("txtDate", px(56, 20, 131, 21), dated.txtDate),
                   label("lblTime", px(12, 50, 42, 14), "Time:"),
                   edit("txtTime", px(56, 46, 131, 21), dated.txtTime),
                   button("cmdAdd", px(91, 74, 96, 24), "&Add", "", onDated(&DatedEntries::cmdAdd_Click))}),
            group("grpAutomatic", px(224, 144, 199, 108), "Automatic Run",
                  {check("chkRunAuto", px(6, 20, 180, 20), "Automatic Run", "Automatically run ZUB every?",
                         options.chkRunAuto),
                   editCombo("ComboInterval", px(12, 46, 175, 22), "Automatically run ZUB every?",
                             options.ComboInterval)}),
            label("lblSchedulerHelp", px(18, 262, 403, 62), form.lblSchedulerHelp, Text::Help)}),
      page(" Standard Plugins", Page,
           {checkList("standardlist", px(16, 12, 407, 200), options.standardlist),
            check("StandardPluginsSelectAll", px(10, 217, 200, 20), "Select All", "",
                  form.StandardPluginsSelectAll),
            group("XPGroupBox2", px(16, 242, 407, 84), "Description",
                  {label("lblStandardPluginDescription", px(12, 20, 383, 58),
                         form.lblStandardPluginDescription)})}),
      button("cmdRemove", px(8, 376, 120, 28), "&Start Cleaning", "Start the cleaning process",
             on(&frmMain::cmdRemove_Click)),
      button("cmdPreview", px(136, 376, 76, 28), "&Preview",
             "Show what a wash would remove, and remove nothing", on(&frmMain::cmdPreview_Click)),
      button("cmdViewLog", px(220, 376, 76, 28), form.cmdViewLog, "View log", on(&frmMain::cmdViewLog_Click)),
      button("cmdHelp", px(315, 376, 62, 28), "Help", "Online Help", on(&frmMain::cmdHelp_Click)),
      button("cmdAbout", px(385, 376, 62, 28), "About", "About ZUB", on(&frmMain::cmdAbout_Click))};
}

}  // namespace

WindowSpec mainWindow(frmMain& form) {
  return {.face = faces::Main,
          .controls = controls(form),
          .form = [&form] { return &form.form; },
          .close =
              [&form] {
                form.QueryUnload(UnloadMode::ControlMenu);
                form.Unload();
              },
          .resize = on(form, &frmMain::Form_Resize),
          .queryEnd = [&form] { form.QueryUnload(UnloadMode::WindowsEnds); },
          .end = [&form] { form.Unload(); },
          .takesFocus = [&form] { return std::exchange(form.dated.focus, nullptr); }};
}

}  // namespace zub::layout
