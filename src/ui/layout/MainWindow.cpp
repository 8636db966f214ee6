#include "ui/layout/WindowSpec.h"

namespace zub::layout {
namespace {

constexpr Place Page = px(8, 32, 439, 336);

constexpr ControlSpec controls[] = {
    {"", Kind::Tabs, "SSTab1", px(8, 8, 439, 24), "", ""},

    {"", Kind::Page, "pageMain", Page, "Main", ""},
    {"pageMain", Kind::IconList, "LstIcons", px(16, 12, 407, 75), "", ""},
    {"pageMain", Kind::Group, "grpIE", px(16, 96, 407, 82), "Internet Explorer", ""},
    {"grpIE", Kind::Check, "chkIECache", px(6, 18, 124, 20), "Cache", "Clean IE cache"},
    {"grpIE", Kind::Check, "chkIEIndex", px(138, 18, 144, 20), "Index.dat",
     "Clean IE index.dat temporary files"},
    {"grpIE", Kind::Check, "chkIECookies", px(288, 18, 110, 20), "Cookies", "Clean IE cookies"},
    {"grpIE", Kind::Check, "chkIEAutocomplete", px(6, 48, 128, 20), "Autocomplete Data",
     "Clean IE autocomplete data"},
    {"grpIE", Kind::Check, "chkIEProgram", px(138, 48, 144, 20), "Downloaded Programs",
     "Remove IE temporary downloaded files"},
    {"grpIE", Kind::Button, "cmdIECookie", px(294, 46, 96, 24), "Manage", "Manage which IE cookies to keep"},
    {"pageMain", Kind::Group, "grpNS", px(16, 96, 407, 82), "Netscape", ""},
    {"grpNS", Kind::Check, "chkNSCache", px(6, 18, 124, 20), "Cache", "Clean Netscape cache"},
    {"grpNS", Kind::Check, "chkNSHistory", px(138, 18, 144, 20), "History", "Clean Netscape history"},
    {"grpNS", Kind::Check, "chkNSCookies", px(288, 18, 110, 20), "Cookies", "Clean Netscape cookies"},
    {"grpNS", Kind::Check, "chkNSMail", px(6, 48, 128, 20), "Mail", "Clean Netscape mail trash"},
    {"grpNS", Kind::Button, "cmdNSKeep", px(294, 46, 96, 24), "Manage",
     "Manage which netscape cookies to keep"},
    {"pageMain", Kind::Label, "lblHelp", px(18, 188, 403, 84), "", "", Text::Help},
    {"pageMain", Kind::Label, "lblTimerRemove", px(18, 286, 148, 14), "", ""},
    {"pageMain", Kind::Clock, "Clock", px(170, 279, 70, 28), "", ""},
    {"pageMain", Kind::Label, "lblLastRemoval", px(18, 313, 403, 14), "", ""},

    {"", Kind::Page, "pagePlugins", Page, "Custom Plugins", ""},
    {"pagePlugins", Kind::CheckList, "lstFiles", px(16, 12, 248, 310), "", ""},
    {"pagePlugins", Kind::Group, "frmPlugins", px(276, 6, 147, 316), "Plugins", ""},
    {"frmPlugins", Kind::Button, "cmdNewPlugin", px(12, 24, 123, 26), "Create A New Plugin",
     "Make a new plugin"},
    {"frmPlugins", Kind::Button, "cmdEditOptions", px(12, 58, 123, 26), "Edit Plugin",
     "Edit the selected plugin"},
    {"frmPlugins", Kind::Button, "cmdRemovePlugin", px(12, 92, 123, 26), "Remove", "Remove selected plugin"},
    {"frmPlugins", Kind::Button, "cmdRefresh", px(12, 126, 123, 26), "Refresh", "Refresh plugin list"},
    {"frmPlugins", Kind::Button, "cmdDownload", px(12, 160, 123, 26), "Download Plugins",
     "Download new plugins"},
    {"frmPlugins", Kind::Check, "chkSelectAll", px(6, 196, 129, 20), "Select All",
     "Select / De-select all plugins"},

    {"", Kind::Page, "pageOptions", Page, "Options", ""},
    {"pageOptions", Kind::Group, "grpRemoveOptions", px(16, 8, 200, 144), "Removal Options", ""},
    {"grpRemoveOptions", Kind::Check, "chkSkipMessages", px(6, 22, 188, 20), "Show pop-up error messages",
     "Allow error popup messages to appear"},
    {"grpRemoveOptions", Kind::Check, "chkSkipPlugins", px(6, 52, 188, 20), "Do not use plugins",
     "Do not use any custom plugin"},
    {"grpRemoveOptions", Kind::Check, "chkCloseAfterWash", px(6, 82, 188, 20), "Close after cleaning",
     "Close ZUB after cleaning"},
    {"grpRemoveOptions", Kind::Check, "chkLoadStartUp", px(6, 112, 188, 20), "Load with windows startup",
     "Run ZUB with windows startup"},
    {"pageOptions", Kind::Group, "frmShredder", px(224, 8, 199, 74), "Shredder", ""},
    {"frmShredder", Kind::Check, "chkBleach", px(6, 18, 180, 20), "Use shredder",
     "Use shredder when removing files or folders"},
    {"frmShredder", Kind::Label, "lblShredder", px(12, 47, 134, 14), "No of times to shred a file", ""},
    {"frmShredder", Kind::DropDown, "cmbShredder", px(148, 43, 40, 22), "",
     "Number of times to shred the file/folder"},
    {"pageOptions", Kind::Group, "xpgroupbox1", px(224, 86, 199, 66), "Windows", ""},
    {"xpgroupbox1", Kind::Label, "lblAutoWash", px(12, 20, 180, 14), "Remove all traces when windows", ""},
    {"xpgroupbox1", Kind::Check, "chkRunStarted", px(6, 38, 88, 20), "Starts",
     "Run ZUB with windows startup and run cleaning process"},
    {"xpgroupbox1", Kind::Check, "chkRunShutDown", px(98, 38, 96, 20), "ShutDown", ""},
    {"pageOptions", Kind::Label, "lblOptionsHelp", px(18, 164, 403, 160), "", "", Text::Help},

    {"", Kind::Page, "pageScheduler", Page, "Scheduler", ""},
    {"pageScheduler", Kind::List, "lstSchedule", px(16, 12, 407, 92), "", ""},
    {"pageScheduler", Kind::Button, "cmdRemoveScheduled", px(16, 112, 96, 26), "&Remove", ""},
    {"pageScheduler", Kind::Button, "cmdAdvancedScheduler", px(327, 112, 96, 26), "Advanced", ""},
    {"pageScheduler", Kind::Group, "grpAddItem", px(16, 144, 199, 108), "Add Item", ""},
    {"grpAddItem", Kind::Label, "lblDate", px(12, 24, 42, 14), "Date:", ""},
    {"grpAddItem", Kind::Edit, "txtDate", px(56, 20, 131, 21), "", ""},
    {"grpAddItem", Kind::Label, "lblTime", px(12, 50, 42, 14), "Time:", ""},
    {"grpAddItem", Kind::Edit, "txtTime", px(56, 46, 131, 21), "", ""},
    {"grpAddItem", Kind::Button, "cmdAdd", px(91, 74, 96, 24), "&Add", ""},
    {"pageScheduler", Kind::Group, "grpAutomatic", px(224, 144, 199, 108), "Automatic Run", ""},
    {"grpAutomatic", Kind::Check, "chkRunAuto", px(6, 20, 180, 20), "Automatic Run",
     "Automatically run ZUB every?"},
    {"grpAutomatic", Kind::EditCombo, "ComboInterval", px(12, 46, 175, 22), "",
     "Automatically run ZUB every?"},
    {"pageScheduler", Kind::Label, "lblSchedulerHelp", px(18, 262, 403, 62), "", "", Text::Help},

    {"", Kind::Page, "pageStandard", Page, " Standard Plugins", ""},
    {"pageStandard", Kind::CheckList, "standardlist", px(16, 12, 407, 200), "", ""},
    {"pageStandard", Kind::Check, "StandardPluginsSelectAll", px(10, 217, 200, 20), "Select All", ""},
    {"pageStandard", Kind::Group, "XPGroupBox2", px(16, 242, 407, 84), "Description", ""},
    {"XPGroupBox2", Kind::Label, "lblStandardPluginDescription", px(12, 20, 383, 58), "", ""},

    {"", Kind::Button, "cmdRemove", px(8, 376, 128, 28), "&Start Cleaning", "Start the cleaning process"},
    {"", Kind::Button, "cmdViewLog", px(144, 376, 92, 28), "&View Log", "View log"},
    {"", Kind::Button, "cmdHelp", px(271, 376, 84, 28), "Help", "Online Help"},
    {"", Kind::Button, "cmdAbout", px(363, 376, 84, 28), "About", "About ZUB"},
};

}  // namespace

constexpr WindowSpec mainWindow{"Zubrane",        455 * TwipsPerPixel, 412 * TwipsPerPixel,
                                Border::Minimise, colors::Window,      controls};

}  // namespace zub::layout
