#include "ui/win32/KitHost.h"

namespace zub {
namespace {

constexpr UINT_PTR TimerId = 1;
constexpr int DesignDpi = 96;

std::int16_t shiftState() {
  const auto down = [](int key) { return GetKeyState(key) < 0; };
  return static_cast<std::int16_t>((down(VK_SHIFT) ? 1 : 0) | (down(VK_CONTROL) ? 2 : 0) |
                                   (down(VK_MENU) ? 4 : 0));
}

}  // namespace

KitHost::KitHost(const ViewSite& site, Parts parts)
    : OwnWindow(site.ui, site.ground), parts_(std::move(parts)) {
  const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  const std::string caption = parts_.control->Caption();
  const bool holdsOthers = site.spec.kind == layout::Kind::Group;
  create({"ZubraneControl", caption.c_str(), style | (parts_.takesFocus ? WS_TABSTOP : 0),
          holdsOthers ? DWORD{WS_EX_CONTROLPARENT} : 0, site.place, site.parent});
  makeCanvas();
  parts_.control->shown();
}

void KitHost::makeCanvas() {
  RECT all;
  GetClientRect(hwnd(), &all);
  const int dpi = parts_.stretched ? ui_.fonts.dpi() : DesignDpi;
  canvas_.emplace(MulDiv(static_cast<int>(all.right), DesignDpi, dpi),
                  MulDiv(static_cast<int>(all.bottom), DesignDpi, dpi));
  parts_.control->BackColor(background());
  parts_.control->resize(canvas_->width(), canvas_->height());
  ui_.places.put(*parts_.control, {hwnd(), dpi});
}

void KitHost::show() {
  if (parts_.show) parts_.show();
  if (changes(caption_, parts_.control->Caption())) SetWindowTextA(hwnd(), caption_.c_str());
  if (parts_.enabled && changes(enabled_, parts_.enabled())) {
    parts_.control->Enabled(enabled_);
    EnableWindow(hwnd(), enabled_ ? TRUE : FALSE);
  }
  if (parts_.visible && changes(visible_, parts_.visible()))
    ShowWindow(hwnd(), visible_ ? SW_SHOWNA : SW_HIDE);
  refresh();
}

void KitHost::press() {
  if (!parts_.press || !parts_.control->Enabled()) return;
  parts_.press();
  refresh();
}

bool KitHost::enter() {
  if ((parts_.dialogCode & DLGC_UNDEFPUSHBUTTON) == 0) return false;
  press();
  return true;
}

void KitHost::refresh() {
  serveTimer();
  if (painted_ == parts_.control->revision()) return;
  painted_ = parts_.control->revision();
  paintCanvas();
  InvalidateRect(hwnd(), nullptr, FALSE);
}

void KitHost::paintCanvas() {
  ui_.text.paintOn(canvas_->dc());
  controls::Surface surface = canvas_->surface();
  parts_.control->paint(surface);
  if (!focused_ || !parts_.press) return;
  const controls::Box place = parts_.control->focusPlace();
  const RECT frame{place.left, place.top, place.right(), place.bottom()};
  SetTextColor(canvas_->dc(), colors::Black);
  SetBkColor(canvas_->dc(), colors::White);
  DrawFocusRect(canvas_->dc(), &frame);
}

void KitHost::paint() {
  PAINTSTRUCT painting;
  const HDC dc = BeginPaint(hwnd(), &painting);
  RECT all;
  GetClientRect(hwnd(), &all);
  StretchBlt(dc, 0, 0, static_cast<int>(all.right), static_cast<int>(all.bottom), canvas_->dc(), 0, 0,
             canvas_->width(), canvas_->height(), SRCCOPY);
  EndPaint(hwnd(), &painting);
}

void KitHost::serveTimer() {
  const Timer& timer = parts_.control->timer();
  if (!changes(timerRuns_, timer.Enabled)) return;
  if (timerRuns_)
    SetTimer(hwnd(), TimerId, static_cast<UINT>(timer.Interval), nullptr);
  else
    KillTimer(hwnd(), TimerId);
}

controls::Mouse KitHost::mouseAt(std::int16_t button, WPARAM keys, LPARAM place) const {
  if (button == 0) button = buttonsDown(keys);
  const float scale =
      parts_.stretched ? static_cast<float>(DesignDpi) / static_cast<float>(ui_.fonts.dpi()) : 1.0F;
  return {button, shiftState(), static_cast<float>(static_cast<short>(LOWORD(place))) * scale,
          static_cast<float>(static_cast<short>(HIWORD(place))) * scale};
}

bool KitHost::onMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  controls::Control& control = *parts_.control;
  const auto at = [&](std::int16_t button) { return mouseAt(button, wParam, lParam); };
  constexpr WPARAM AnyButton = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;
  switch (message) {
    case WM_MOUSEMOVE:
      control.mouseMove(at(0));
      break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      if (parts_.takesFocus) SetFocus(hwnd());
      [[fallthrough]];
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK: {
      SetCapture(hwnd());
      const bool left = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
      const controls::Mouse mouse = at(left ? controls::LeftButton : controls::RightButton);
      if (message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK)
        control.mouseDoubleClick(mouse);
      else
        control.mouseDown(mouse);
      break;
    }
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
      if ((wParam & AnyButton) == 0 && GetCapture() == hwnd()) ReleaseCapture();
      control.mouseUp(at(message == WM_LBUTTONUP ? controls::LeftButton : controls::RightButton));
      break;
    default:
      return false;
  }
  refresh();
  return true;
}

bool KitHost::onKey(UINT message, WPARAM wParam) {
  if (parts_.press) {
    if (wParam != VK_SPACE) return false;
    if (message == WM_KEYUP) press();
    return true;
  }
  if (!parts_.takesFocus) return false;
  const auto code = static_cast<std::int16_t>(wParam);
  if (message == WM_KEYDOWN)
    parts_.control->keyDown(code, shiftState());
  else
    parts_.control->keyUp(code, shiftState());
  refresh();
  return true;
}

LRESULT KitHost::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!canvas_) return OwnWindow::onMessage(message, wParam, lParam);  // it is being made
  if (onMouse(message, wParam, lParam)) return 0;
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    case WM_TIMER:
      parts_.control->timerTick();
      refresh();
      return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
      if (onKey(message, wParam)) return 0;
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      focused_ = message == WM_SETFOCUS;
      painted_.reset();
      refresh();
      return 0;
    case WM_GETDLGCODE:
      return parts_.dialogCode;
    case BM_CLICK:
      press();
      return 0;
    default:
      break;
  }
  return OwnWindow::onMessage(message, wParam, lParam);
}

}  // namespace zub
