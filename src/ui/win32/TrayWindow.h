// The hidden window behind the icon in the tray: gets the icon's messages and owns its menu.
#pragma once

#include "platform/Services.h"
#include "ui/win32/OwnWindow.h"

namespace zub {

class frmIcon;

class TrayWindow : public OwnWindow, public Tray {
 public:
  explicit TrayWindow(Ui& ui);

  // Who gets the icon's messages. The form is also told how its menu shows.
  void attach(frmIcon& form);

  void add(std::string_view tip) override;
  void remove() override;

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  NOTIFYICONDATAA record() const;
  void popupMenu();

  frmIcon* form_ = nullptr;
};

}  // namespace zub
