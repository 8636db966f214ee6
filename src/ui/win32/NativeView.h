// A plain control of the system: made, subclassed for the program's look, its notices turned into changes of
// the state.
#pragma once

#include <string>

#include "ui/win32/CommonControls.h"
#include "ui/win32/View.h"

namespace zub {

class NativeView : public View {
 public:
  // The view behind a control's handle; null for a window that is not one.
  static NativeView* of(HWND control);

  HWND hwnd() const override { return hwnd_; }
  // Notices of the control.
  virtual void command(WORD) {}
  virtual LRESULT notify(NMHDR&) { return 0; }
  // Sets the colours of the letters, and answers the brush under them.
  virtual HBRUSH color(HDC dc);

 protected:
  explicit NativeView(const ViewSite& site) : site_(site) {}
  void create(const char* className, DWORD style, const std::string& text = {}, DWORD extendedStyle = 0);

  virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT original(UINT message, WPARAM wParam, LPARAM lParam) const;
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageA(hwnd_, message, wParam, lParam);
  }
  LRESULT sendText(UINT message, WPARAM wParam, const std::string& text) const {
    return send(message, wParam, reinterpret_cast<LPARAM>(text.c_str()));
  }
  std::string text() const;
  void text(const std::string& text) const { SetWindowTextA(hwnd_, text.c_str()); }
  HFONT font() const { return site_.ui.fonts.font(layout::fontOf(site_.spec.text)); }

  ViewSite site_;
  Color foreColor_ = colors::Black;
  Color backColor_ = colors::White;
  int air_ = 0;  // pixels between the frame and the inner part, above and below

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void paintFrame() const;

  HWND hwnd_ = nullptr;
  WNDPROC original_ = nullptr;
};

// What is made with it gets the frame of boxes and lists.
inline constexpr DWORD Framed = WS_EX_CLIENTEDGE;
inline constexpr COLORREF FrameColor = rgb(127, 157, 185);

}  // namespace zub
