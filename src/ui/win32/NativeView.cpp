#include "ui/win32/NativeView.h"

#include <string_view>

namespace zub {
namespace {

constexpr const char* ViewProperty = "ZubraneView";

}  // namespace

NativeView* NativeView::of(HWND control) {
  return control != nullptr ? static_cast<NativeView*>(GetPropA(control, ViewProperty)) : nullptr;
}

void NativeView::create(const char* className, DWORD style, const std::string& text, DWORD extendedStyle) {
  const RECT& place = site_.place;
  hwnd_ = CreateWindowExA(extendedStyle, className, text.c_str(), style | WS_CHILD | WS_VISIBLE, place.left,
                          place.top, place.right - place.left, place.bottom - place.top, site_.parent,
                          nullptr, site_.ui.instance, nullptr);
  SetPropA(hwnd_, ViewProperty, this);
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font()), FALSE);
}

LRESULT CALLBACK NativeView::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  NativeView* view = of(window);
  return view != nullptr ? view->onMessage(message, wParam, lParam)
                         : DefWindowProcA(window, message, wParam, lParam);
}

LRESULT NativeView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = original(message, wParam, lParam);
  switch (message) {
    case WM_NCPAINT:
      if ((GetWindowLongA(hwnd_, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0) paintFrame();
      return result;
    case WM_NCCALCSIZE:
      InflateRect(reinterpret_cast<RECT*>(lParam), 0, -air_);
      return result;
    case WM_NCHITTEST:
      return air_ != 0 ? HTCLIENT : result;
    default:
      return result;
  }
}

LRESULT NativeView::original(UINT message, WPARAM wParam, LPARAM lParam) const {
  return CallWindowProcA(original_, hwnd_, message, wParam, lParam);
}

// In place of the sunken edge, which is two pixels wide.
void NativeView::paintFrame() const {
  RECT all;
  GetWindowRect(hwnd_, &all);
  OffsetRect(&all, -all.left, -all.top);
  RECT inner = all;
  InflateRect(&inner, -1, -1);
  const HBRUSH ground = site_.ui.fonts.brush(plainColor(backColor_));
  const HBRUSH line = site_.ui.fonts.brush(FrameColor);
  const RECT above{inner.left, inner.top, inner.right, inner.top + 1 + air_};
  const RECT below{inner.left, inner.bottom - 1 - air_, inner.right, inner.bottom};
  const HDC dc = GetWindowDC(hwnd_);
  FillRect(dc, &above, ground);
  FillRect(dc, &below, ground);
  FrameRect(dc, &inner, site_.ui.fonts.scale().line() > 1 ? line : ground);
  FrameRect(dc, &all, line);
  ReleaseDC(hwnd_, dc);
}

HBRUSH NativeView::color(HDC dc) {
  SetTextColor(dc, plainColor(foreColor_));
  SetBkColor(dc, plainColor(backColor_));
  return site_.ui.fonts.brush(plainColor(backColor_));
}

std::string NativeView::text() const {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(hwnd_)) + 1, '\0');
  const int length = GetWindowTextA(hwnd_, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace zub
