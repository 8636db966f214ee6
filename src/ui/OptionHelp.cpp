#include "ui/OptionHelp.h"

namespace zub {
namespace {

struct RowHelp {
  std::string_view picked;
  std::string_view checked;  // empty: as picked
};

constexpr std::array optionHelpTable{
    OptionHelp{
        &Options::chkBleach, HelpLabel::Options,
        "Use shredder - This option instructs ZUB to shred the files it removes by overwriting each file a "
        "set number of times with random characters. This will render the files unrecoverable by utilities "
        "such as undelete and unerase. The default setting for shredding will overwrite a file 1 time, which "
        "is usually enough. The higher the number of overwrites the longer the wash cycle will take. "
        "Overwriting a file 3 times respects the DOD 5220.22-M directive for sanitizing a file on a "
        "Non-Removable Rigid Disk or a Removable Rigid Disk and overwriting a file 7 times respects the NSA "
        "approved seven-pass file erasure method."},
    OptionHelp{
        &Options::chkCloseAfterWash, HelpLabel::Options,
        "Close after Wash - This option will close ZUB completely once it has finished cleaning. If this "
        "option is checked, and ZUB closes, it will not perform any automatic cleaning unless it is "
        "re-started."},
    OptionHelp{
        &Options::chkLoadStartUp, HelpLabel::Options,
        "Load with Windows Startup - This option will cause ZUB to load and run minimized in the system tray "
        "whenever Windows loads. Check this option if you have ZUB scheduler set to clean automatically at "
        "specified intervals. If ZUB is not running, it will not perform any automatic cleaning."},
    OptionHelp{&Options::chkRunStarted, HelpLabel::Options,
               "This option will automatically run ZUB when Windows is started and will start the cleaning "
               "process."},
    OptionHelp{
        &Options::chkSkipMessages, HelpLabel::Options,
        "Show pop-up error messages - When this option is checked, ZUB will allow all error pop-up messages "
        "to show when any errors occur."},
    OptionHelp{&Options::chkSkipPlugins, HelpLabel::Options,
               "Do not use plugins - This option will instruct ZUB to skip all the Custom plugin-Items while "
               "cleaning."},
    OptionHelp{
        &Options::chkIEAutocomplete, HelpLabel::Main,
        "IE Auto Complete Data - Internet Explorer 5.x+ can store a record of almost everything that you "
        "type into any web site form. Form data can be things like keywords you have entered into a search "
        "engine or personal data such as your name and address. Choose this option to remove all IE 5+ auto "
        "complete form data."},
    OptionHelp{&Options::chkIECache, HelpLabel::Main,
               "IE Cache - Choose this option to clean the Internet Explorer cache."},
    OptionHelp{
        &Options::chkIECookies, HelpLabel::Main,
        "IE Cookies - Choose this option to remove the stored Internet Explorer cookies. Click the manage "
        "button if you don't want to delete all of your IE cookies."},
    OptionHelp{
        &Options::chkIEIndex, HelpLabel::Main,
        "IE Index.dat - Choose this option to clean the Temporary Internet Files, History and Address Bar "
        "for Internet Explorer."},
    OptionHelp{&Options::chkIEProgram, HelpLabel::Main,
               "IE Downloaded Programs - Internet Explorer stores ActiveX and Java applets that have been "
               "downloaded from the web in this directory. Choose this option to clean this directory."},
    OptionHelp{&Options::chkNSCache, HelpLabel::Main,
               "Netscape Cache - Choose this option to clean the netscape cache."},
    OptionHelp{
        &Options::chkNSCookies, HelpLabel::Main,
        "Netscape Cookies - Choose this option to remove the stored netscape cookies. Click the manage "
        "button if you don't want to delete all of your netscape cookies."},
    OptionHelp{&Options::chkNSHistory, HelpLabel::Main,
               "Netscape History - Choose this option to clean netscape's history."},
    OptionHelp{&Options::chkNSMail, HelpLabel::Main,
               "Netscape Mail - Choose this option to clean netscape's mail-box trash."},
    OptionHelp{
        &Options::chkRunAuto, HelpLabel::Scheduler,
        "Automatic run - Using the pull down menu, you can select the time interval in which you would like "
        "ZUB to clean your items. Time intervals range from every 15 minutes to once a month. Once you have "
        "selected a time, ZUB will then clean your items automatically at that time."},
};

// Two rows read differently when their check changes.
constexpr std::array<RowHelp, IconChecks::Count> rowHelpTable{{
    {"Internet Explorer (IE) - Check this option to remove IE cookies, cache and history. Note: If you "
     "visit sites that store useful cookies that you wish to keep, then you can click the manage button "
     "below.",
     {}},
    {"Windows Media Player - This option to remove the (Most Recently Used - MRU) lists that are stored. "
     "MRU lists contain links to the last 5 or 10 items that have been used and are found in Windows "
     "Media Player (OPEN, SAVE AS) and other options. The actual documents or files are not removed, only "
     "the references to these items in the MRU are removed.",
     {}},
    {"MS-Office - This option to remove the (Most Recently Used - MRU) lists that are stored. The MRU "
     "lists contain links to the last 5 or 10 items that have been used and are found in MS-Office (OPEN, "
     "SAVE AS, Insert Picture) and other options. This will remove the MRU lists for "
     "Access,Word,Excel,Photo Editor and PowerPoint. The actual documents or files are not removed, only "
     "the references to these items in the MRU are removed.",
     "MS-Office - This option removes the (Most Recently Used - MRU) lists that are stored. The MRU lists "
     "contain links to the last 5 or 10 items that have been used and are found in MS-Office (OPEN, SAVE "
     "AS, Insert Picture) and other options. This will remove the MRU lists for Access,Word,Excel,Photo "
     "Editor and PowerPoint. The actual documents or files are not removed, only the references to these "
     "items in the MRU are removed."},
    {"Recycle Bin - Choose this option to remove all of the files that are contained in the Recycle Bin. "
     "This removes all the Recycle Bins on all drives on your computer (including any network drives that "
     "you have mapped).",
     {}},
    {"Scan Disk Temporary Files - Windows Scan Disk utility creates .CHK files at the root directory of "
     "drives. These files contain junk data and can be erased to help keep your drives clean. This option "
     "will erase the .CHK files (if they exist) for you.",
     {}},
    {"Netscape - Choose this Option to remove Netscape cookies, cache, history, and mailbox trash. Note: "
     "If you visit sites that store useful cookies that you wish to keep, Then click the manage button "
     "below to exclude cookies from being removed. NOTE: Netscape need to be closed before ZUB can clean "
     "the netscape history items.",
     "Netscape - This Option removes Netscape cookies, cache, history, and mailbox trash. Note: If you "
     "visit sites that store useful cookies that you wish to keep, Then click the manage button below to "
     "exclude cookies from being removed. NOTE: Netscape needs to be closed before ZUB can clean the "
     "netscape history items."},
    {"Run History - This option removes the history of files you have run using the Run command. The Run "
     "history is stored under the Microsoft Windows Start Button under the Run menu item (Start | Run)",
     {}},
    {"Recent History - This option removes the history of recent documents that you have opened. The "
     "document history is stored under the Microsoft Windows Start Button under the Documents menu item "
     "(Start | Documents).",
     {}},
    {"Temporary Files - This option removes the Windows temporary directory Ex: (C:\\windows\\temp). The "
     "Windows temporary directory stores temporary files that are used during installation of programs "
     "and at other various times.",
     {}},
    {"Search History - This option removes the history of files you have searched for using the Find "
     "program. The Find history is stored under the Microsoft Windows Start Button under Find, then "
     "File/Folders menu item (Start | Find | Files/Folders)",
     {}},
}};

}  // namespace

std::span<const OptionHelp> optionHelp() {
  return optionHelpTable;
}

std::string_view helpOfPickedRow(int row) {
  return rowHelpTable.at(static_cast<std::size_t>(row)).picked;
}

std::string_view helpOfCheckedRow(int row) {
  const RowHelp& help = rowHelpTable.at(static_cast<std::size_t>(row));
  return help.checked.empty() ? help.picked : help.checked;
}

}  // namespace zub
