// A window of a class of ours. Messages run under the guard; those that a plain control sends its parent go
// to the control's view.
#pragma once

#include "ui/win32/Ui.h"

namespace zub {

class OwnWindow {
 public:
  OwnWindow(const OwnWindow&) = delete;
  OwnWindow& operator=(const OwnWindow&) = delete;

  HWND hwnd() const { return hwnd_; }

 protected:
  struct Creation {
    const char* className;
    const char* title;
    DWORD style;
    DWORD extendedStyle;
    RECT place;
    HWND parent;
  };
  OwnWindow(Ui& ui, COLORREF background) : ui_(ui), background_(background) {}
  virtual ~OwnWindow() = default;  // the system takes the window itself away with the process
  void create(const Creation& creation);

  virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT byDefault(UINT message, WPARAM wParam, LPARAM lParam) const {
    return DefWindowProcA(hwnd_, message, wParam, lParam);
  }
  COLORREF background() const { return background_; }
  // The buttons that the keys of a mouse message tell, as the kit counts them.
  static std::int16_t buttonsDown(WPARAM keys);

  Ui& ui_;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND hwnd_ = nullptr;
  COLORREF background_;
};

}  // namespace zub
