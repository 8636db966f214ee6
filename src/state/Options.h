// The user's choices: the live state of every option of the main window, under the names of its controls.
// This is their only copy while the program runs.
#pragma once

#include <array>

#include "state/Controls.h"
#include "state/Lists.h"

namespace zub {

// The ten check rows of the icon list, by the row numbers that the list shows.
class IconChecks {
 public:
  static constexpr int Count = 10;

  // index 0 to 9; 1 ticked, 0 not.
  int Check(int index) const { return checks_.at(static_cast<std::size_t>(index)); }
  void Check(int index, int value) { checks_.at(static_cast<std::size_t>(index)) = value != 0 ? 1 : 0; }

 private:
  std::array<int, Count> checks_{};
};

namespace iconRow {
inline constexpr int InternetExplorer = 0;
inline constexpr int MediaPlayer = 1;
inline constexpr int Office = 2;
inline constexpr int RecycleBin = 3;
inline constexpr int ScanDisk = 4;
inline constexpr int Netscape = 5;
inline constexpr int RunHistory = 6;
inline constexpr int DocumentHistory = 7;
inline constexpr int TempFolder = 8;
inline constexpr int FindHistory = 9;
}  // namespace iconRow

struct Options {
  Label lblLastRemoval{"Last removal on : NEVER USED"};

  IconChecks LstIcons;

  CheckOption chkIECache;
  CheckOption chkIECookies;
  CheckOption chkIEProgram;
  CheckOption chkIEIndex;
  CheckOption chkIEAutocomplete;
  CheckOption chkNSCache;
  CheckOption chkNSCookies;
  CheckOption chkNSMail;
  CheckOption chkNSHistory;

  CheckOption chkLoadStartUp;
  CheckOption chkCloseAfterWash;
  CheckOption chkBleach;
  CheckOption chkSkipPlugins;
  CheckOption chkSkipMessages;  // 1 shows the error messages, in spite of the name
  CheckOption chkRunStarted;
  CheckOption chkRunShutDown;
  CheckOption chkRunAuto;

  Combo cmbShredder{{"1", "2", "3", "4", "5", "6", "7", "8", "9"}, 0};
  Combo ComboInterval{{"Every Hour", "Every Half-Hour", "Every 15 Minutes"}, 0};

  ListRows lstFiles;                               // custom plugins
  ListRows standardlist{ListRows::Order::Sorted};  // standard plugins
};

}  // namespace zub
