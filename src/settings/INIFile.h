// The settings store: snapshots of the options, to and from the flat registry key
// HKEY_CURRENT_USER\Software\ZUB. In spite of its name it touches no INI file. All values are text. A read
// stores the default of what is missing or unreadable, so that after one GetInfo the key holds every value.
//
//   flag     "1" or "0" and a NUL, 2 bytes
//   digit    the number's decimal text, cut or NUL-padded to 2 bytes
//   text     as many bytes as the text has before trimming; the system adds the NUL behind a text (Registry.h)
//
// Writing an option raises its handler; GetInfo therefore runs the handlers of all options.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Platform.h"
#include "state/Options.h"

namespace zub {

inline constexpr std::string_view storeKey = "Software\\ZUB";

// All settings but the plugins' ticks: the stored name, the control, and what it does, in a line for the console; the
// windows have texts of their own. The fixed flags' names differ from their controls' in three places.
struct FlagName {
  std::string_view stored;
  CheckOption Options::*option;
  std::string_view meaning;
};
inline constexpr std::array flagNames{
    FlagName{"chkIECache", &Options::chkIECache, "Internet Explorer: the cache"},
    FlagName{"chkIECookies", &Options::chkIECookies, "Internet Explorer: the cookies that are not kept"},
    FlagName{"chkIEPrograms", &Options::chkIEProgram, "Internet Explorer: downloaded programs"},
    FlagName{"chkIEIndex", &Options::chkIEIndex, "Internet Explorer: history and typed addresses"},
    FlagName{"chkIEAutocomplete", &Options::chkIEAutocomplete,
             "Internet Explorer: what was typed into forms"},
    FlagName{"chkNSCache", &Options::chkNSCache, "Netscape: the cache"},
    FlagName{"chkNSCookie", &Options::chkNSCookies, "Netscape: the cookies that are not kept"},
    FlagName{"chkNSMail", &Options::chkNSMail, "Netscape: the trash of the mail"},
    FlagName{"chkNSHistory", &Options::chkNSHistory, "Netscape: the history"},
    FlagName{"chkLoadStartup", &Options::chkLoadStartUp, "start in the tray with Windows"},
    FlagName{"chkCloseAfterWash", &Options::chkCloseAfterWash, "end the program after a wash"},
    FlagName{"chkBleach", &Options::chkBleach, "overwrite files before they are removed"},
    FlagName{"chkSkipPlugins", &Options::chkSkipPlugins, "leave all plugins out"},
    FlagName{"chkSkipMessages", &Options::chkSkipMessages, "show a message for each error"},
    FlagName{"chkRunStarted", &Options::chkRunStarted,
             "wash when the program starts with Windows; sets chkLoadStartup, too"},
    FlagName{"chkRunShutDown", &Options::chkRunShutDown, "wash at the end of the session"},
    FlagName{"chkRunAuto", &Options::chkRunAuto, "wash at the interval, while the program runs"},
};

// The flags of the icon list by row.
struct IconName {
  std::string_view stored;
  std::string_view meaning;
};
inline constexpr std::array<IconName, IconChecks::Count> iconNames{{
    {"chkIE", "task: Internet Explorer, as the five chkIE... below say"},
    {"chkWMP", "task: the lists of the media player"},
    {"chkOfficeMRU", "task: the lists of recent Office documents"},
    {"chkRecycleBin", "task: the recycle bins of all drives"},
    {"chkScanDisk", "task: the files of the disk checker"},
    {"chkNetscape", "task: Netscape, as the four chkNS... below say"},
    {"chkRunHistory", "task: the list of the Run command"},
    {"chkDocHistory", "task: the list of recent documents"},
    {"chkTempFolder", "task: the temporary folder"},
    {"chkFindHistory", "task: the lists of the search"},
}};

struct DigitName {
  std::string_view stored;
  Combo Options::*combo;
  std::string_view meaning;
};
inline constexpr std::array digitNames{
    DigitName{"cmbShredder", &Options::cmbShredder,
              "how often files are overwritten, as it is stored: one less than passes"},
    DigitName{"ComboInterval", &Options::ComboInterval,
              "the interval: 0 an hour, 1 half an hour, 2 a quarter"},
};

inline constexpr std::string_view customPluginPrefix = "ZUBPlugin ";
inline constexpr std::string_view standardPluginPrefix = "ZUBStandardPlugin ";

class INIFile {
 public:
  INIFile(const Platform& pc, Options& options) : pc_(pc), options_(options) {}

  // Each returns 0, or -1 when the key could not be opened.
  int PutInfo();   // all options, into the store
  int GetInfo();   // all but the standard plugins, from the store
  int GetInfo2();  // the check marks of the standard plugins

 private:
  int GetBool(std::string_view name);
  int PutBool(std::string_view name, int number) { return PutNumber(name, number); }
  int GetNumber(std::string_view name);
  int PutNumber(std::string_view name, int number);
  int PutText(std::string_view name, std::string_view text);
  std::string GetText(std::string_view name);

  bool openKey(OpenKey& key);
  char digitOf(std::string_view name);
  int write(std::string_view name, std::string_view bytes);
  void putRows(const ListRows& rows, std::string_view prefix);
  void getRows(ListRows& rows, std::string_view prefix);

  const Platform& pc_;
  Options& options_;
  RegistryKey key_ = 0;  // open within one of the public calls
};

}  // namespace zub
