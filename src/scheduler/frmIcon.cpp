#include "scheduler/frmIcon.h"

namespace zub {

void frmIcon::SetTopForm(int number) {
  TopFormNumber = number;
  const auto window = windows.find(number);
  if (window != windows.end()) TopForm = window->second;
}

void frmIcon::IconMessage(int number) {
  switch (number) {
    case LeftDown:
      mnuShow_Click();
      break;
    case LeftDoubleClick:
      doubleClick();
      break;
    case RightDown:
    case RightDoubleClick:
      raise(popupMenu);
      break;
    default:
      break;  // real movements of the mouse
  }
}

void frmIcon::mnuShow_Click() {
  Form& main = windows.at(MainWindow)();
  if (main.Visible) {
    main.Visible = false;
  } else {
    main.windowState = WindowState::Normal;
    main.Visible = true;
  }
}

void frmIcon::doubleClick() {
  if (TopFormNumber == MainWindow) windows.at(MainWindow)().Visible = true;
  if (TopFormNumber == MainWindow || TopFormNumber == ProgressWindow) TopForm().Show();
}

}  // namespace zub
