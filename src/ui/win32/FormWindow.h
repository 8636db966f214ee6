// A window of the program: made from its layout, it shows a form and hands the user's doings to it. It stays
// made when the form is unloaded, and then is hidden.
#pragma once

#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "ui/win32/FormPage.h"
#include "ui/win32/OwnWindow.h"
#include "ui/win32/View.h"

namespace zub {

class FormWindow : public OwnWindow {
 public:
  // `owner` may be null.
  FormWindow(Ui& ui, layout::WindowSpec window, HWND owner);
  ~FormWindow() override;

  // The window of a handle; null for a window that is none of these.
  static FormWindow* of(HWND window);

  // The two halves of a turn: windows that come are shown before others go, so that the program keeps the
  // user's attention.
  // `covered`: a modal window lies over this one, which gets no input then, whatever its form says.
  void showForm(bool covered);
  void hideForm(bool covered);
  // Keys that work on the window as a whole: Esc, those of the tab headers and of the controls' order, access
  // keys. False: the message goes its usual way.
  bool takesMessage(MSG& message);

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void showIcon();
  void makeToolTips();
  void makeControls(const layout::Controls& controls, HWND holder, Color ground);
  HWND makePage(const layout::ControlSpec& spec);
  // `continues`: the arrow keys go on to it from the control before.
  HWND makeView(const layout::ControlSpec& spec, HWND holder, COLORREF ground, bool continues);
  void addToolTip(HWND control, std::string_view text);
  COLORREF backdropUnder(const layout::ControlSpec& spec) const;
  void paintBackdrop(HDC dc) const;
  void place();
  void showPage(int page);

  bool isWanted() const;
  void enable(const Form& form, bool covered);
  void beginAnew(const Form& form);
  void appear(Form& form);
  void showControls();
  void takeFocus();
  bool takesKey(const MSG& key);
  bool takesEscape(HWND control);
  bool turnPage(int direction);

  void showPointer(const Form& form);
  void stateChanged(WPARAM how);
  void queryEnd();
  void drag();

  const layout::WindowSpec window_;
  HWND owner_;
  HWND toolTips_ = nullptr;
  HWND tabs_ = nullptr;
  HWND lastFocus_ = nullptr;
  std::vector<std::unique_ptr<FormPage>> pages_;
  std::vector<std::unique_ptr<View>> views_;
  std::map<const TextBox*, View*> boxes_;
  bool visible_ = false;
  bool enabled_ = true;
  unsigned broughtUp_ = 0;
  bool placed_ = false;
  bool grabbed_ = false;  // a button went down on the window's own ground
  MousePointer pointer_ = MousePointer::Default;
};

}  // namespace zub
