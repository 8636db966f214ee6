// The window around a control of the kit: gives it pixels, the mouse, the keyboard and its timer.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "ui/win32/OwnWindow.h"
#include "ui/win32/View.h"

namespace zub {

class KitAccessible;

class KitHost : public OwnWindow, public View {
 public:
  struct Parts {
    std::unique_ptr<controls::Control> control;
    std::function<void()> show;  // brings the control up to the state; what is none stays as it is
    std::function<bool()> visible;
    std::function<bool()> enabled;
    LRESULT dialogCode = DLGC_STATIC;
    bool takesFocus = false;
    bool takesSpace = false;  // the bar is a click
    bool takesKeys = false;   // all but Tab, and what is held down with Alt
  };
  KitHost(const ViewSite& site, Parts parts);
  ~KitHost() override;

  HWND hwnd() const override { return OwnWindow::hwnd(); }
  void show() override;
  void forget() override { parts_.control->shown(); }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void layOut();
  void refresh();  // has the control painted anew where its look has changed
  void paint();
  void paintFocus(HDC canvas) const;
  void serveTimer();
  LRESULT handOutAccessible(WPARAM wParam);
  void tellChanges();  // to those who cannot see them
  void press(int part);
  bool onMouse(UINT message, WPARAM wParam, LPARAM lParam);
  void onKey(UINT message, WPARAM wParam);
  static controls::Mouse mouseAt(std::int16_t buttons, LPARAM place);

  Parts parts_;
  unsigned shownLook_ = 0;
  KitAccessible* accessible_ = nullptr;    // made when somebody asks
  std::vector<controls::Described> told_;  // the control, then its parts
  std::string caption_;
  bool isLaidOut_ = false;
  bool visible_ = true;
  bool enabled_ = true;
  bool focused_ = false;
  bool timerRuns_ = false;
};

}  // namespace zub
