// A page behind tab headers, with the frame that begins in them.
#pragma once

#include "ui/win32/OwnWindow.h"

namespace zub {

class FormPage : public OwnWindow {
 public:
  FormPage(Ui& ui, HWND form, const RECT& place) : OwnWindow(ui, colors::Page) {
    create(
        {"ZubranePage", "", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT, place, form});
  }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    const LRESULT result = OwnWindow::onMessage(message, wParam, lParam);
    if (message == WM_ERASEBKGND) frame(reinterpret_cast<HDC>(wParam));
    return result;
  }

 private:
  void frame(HDC dc) const {
    RECT box;
    GetClientRect(hwnd(), &box);
    const int line = ui_.fonts.scale().line();
    box.top -= line;  // the headers draw the upper line
    for (int ring = 0; ring < line; ++ring, InflateRect(&box, -1, -1))
      FrameRect(dc, &box, ui_.fonts.brush(rgb(208, 208, 191)));
  }
};

}  // namespace zub
