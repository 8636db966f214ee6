// The life in the tray: a window that is never visible, which owns the icon's menu, gets the icon's mouse
// messages and knows which window counts as the program's top window.
#pragma once

#include <functional>
#include <map>

#include "state/Controls.h"

namespace zub {

class frmIcon {
 public:
  // The numbers of the top window.
  static constexpr int MainWindow = 0;
  static constexpr int ProgressWindow = 1;
  static constexpr int ReportWindow = 2;
  static constexpr int CookieWindow = 3;
  static constexpr int MessageWindow = 5;

  // The icon's messages, as the numbers of the mouse messages.
  static constexpr int LeftDown = 513;
  static constexpr int LeftDoubleClick = 515;
  static constexpr int RightDown = 516;
  static constexpr int RightDoubleClick = 518;

  static constexpr const char* szTip = "Zubrone";

  MenuEntry mnuZUB{"ZUB"};
  MenuEntry mnuShow{"&Show/Hide"};
  MenuEntry mnuSelect{"-"};
  MenuEntry mnuRemove{"&Remove Tracks now"};
  MenuEntry mnuExit{"&Exit"};

  int TopFormNumber = MainWindow;
  std::function<Form&()> TopForm;
  int SetTopForm() const { return TopFormNumber; }
  // A number without a window is stored and leaves TopForm as it was.
  void SetTopForm(int number);

  // What the composition gives: the windows by number, and what the menu does beyond this form.
  std::map<int, std::function<Form&()>> windows;
  std::function<void()> Press_Clean;
  std::function<void()> unloadMain;
  std::function<void()> popupMenu;  // shows the menu at the pointer; none on a PC without windows

  void IconMessage(int number);
  void mnuShow_Click();
  void mnuRemove_Click() {
    if (TopFormNumber == MainWindow) Press_Clean();
  }
  void mnuExit_Click() { unloadMain(); }

 private:
  void doubleClick();
};

}  // namespace zub
