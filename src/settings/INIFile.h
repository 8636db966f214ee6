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

// The fixed flags by their stored names, which differ from their controls' names in three places.
struct FlagName {
  std::string_view stored;
  CheckOption Options::*option;
};
inline constexpr std::array flagNames{
    FlagName{"chkIECache", &Options::chkIECache},
    FlagName{"chkIECookies", &Options::chkIECookies},
    FlagName{"chkIEPrograms", &Options::chkIEProgram},
    FlagName{"chkIEIndex", &Options::chkIEIndex},
    FlagName{"chkIEAutocomplete", &Options::chkIEAutocomplete},
    FlagName{"chkNSCache", &Options::chkNSCache},
    FlagName{"chkNSCookie", &Options::chkNSCookies},
    FlagName{"chkNSMail", &Options::chkNSMail},
    FlagName{"chkNSHistory", &Options::chkNSHistory},
    FlagName{"chkLoadStartup", &Options::chkLoadStartUp},
    FlagName{"chkCloseAfterWash", &Options::chkCloseAfterWash},
    FlagName{"chkBleach", &Options::chkBleach},
    FlagName{"chkSkipPlugins", &Options::chkSkipPlugins},
    FlagName{"chkSkipMessages", &Options::chkSkipMessages},
    FlagName{"chkRunStarted", &Options::chkRunStarted},
    FlagName{"chkRunShutDown", &Options::chkRunShutDown},
    FlagName{"chkRunAuto", &Options::chkRunAuto},
};

// The flags of the icon list by row.
inline constexpr std::array<std::string_view, IconChecks::Count> iconNames{
    "chkIE",       "chkWMP",        "chkOfficeMRU",  "chkRecycleBin", "chkScanDisk",
    "chkNetscape", "chkRunHistory", "chkDocHistory", "chkTempFolder", "chkFindHistory"};

struct DigitName {
  std::string_view stored;
  Combo Options::*combo;
};
inline constexpr std::array digitNames{DigitName{"cmbShredder", &Options::cmbShredder},
                                       DigitName{"ComboInterval", &Options::ComboInterval}};

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
