#include "ui/win32/KitHost.h"

#include "ui/win32/KitAccessible.h"

namespace zub {
namespace {

constexpr UINT_PTR TimerId = 1;

std::int16_t shiftState() {
  const auto down = [](int key) { return GetKeyState(key) < 0; };
  return static_cast<std::int16_t>((down(VK_SHIFT) ? 1 : 0) | (down(VK_CONTROL) ? 2 : 0) |
                                   (down(VK_MENU) ? 4 : 0));
}

struct ButtonMessages {
  UINT down, doubleClick, up;
  std::int16_t button;
};
constexpr ButtonMessages MouseButtons[] = {
    {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONUP, controls::LeftButton},
    {WM_RBUTTONDOWN, WM_RBUTTONDBLCLK, WM_RBUTTONUP, controls::RightButton},
    {WM_MBUTTONDOWN, WM_MBUTTONDBLCLK, WM_MBUTTONUP, controls::MiddleButton},
};

}  // namespace

KitHost::KitHost(const ViewSite& site, Parts parts)
    : OwnWindow(site.ui, site.ground), parts_(std::move(parts)) {
  const DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  const std::string caption = parts_.control->Caption();
  const bool holdsOthers = site.spec.kind == layout::Kind::Group;
  create({"ZubraneControl", caption.c_str(), style | (parts_.takesFocus ? WS_TABSTOP : 0),
          holdsOthers ? DWORD{WS_EX_CONTROLPARENT} : 0, site.place, site.parent});
  layOut();
  parts_.control->shown();
}

KitHost::~KitHost() {
  if (accessible_ == nullptr) return;
  accessible_->disconnect();
  accessible_->Release();
}

void KitHost::layOut() {
  RECT all;
  GetClientRect(hwnd(), &all);
  parts_.control->BackColor(background());
  parts_.control->resize(static_cast<int>(all.right), static_cast<int>(all.bottom));
  ui_.places.put(*parts_.control, hwnd());
  isLaidOut_ = true;
}

void KitHost::show() {
  if (parts_.show) parts_.show();
  if (changes(caption_, parts_.control->Caption())) SetWindowTextA(hwnd(), caption_.c_str());
  if (parts_.enabled && changes(enabled_, parts_.enabled())) {
    parts_.control->Enabled(enabled_);
    EnableWindow(hwnd(), enabled_ ? TRUE : FALSE);
  }
  if (parts_.visible && changes(visible_, parts_.visible())) {
    if (visible_) parts_.control->shown();
    ShowWindow(hwnd(), visible_ ? SW_SHOWNA : SW_HIDE);
  }
  refresh();
}

void KitHost::refresh() {
  serveTimer();
  if (!changes(shownLook_, parts_.control->revision())) return;
  InvalidateRect(hwnd(), nullptr, FALSE);
  if (accessible_ != nullptr) tellChanges();
}

LRESULT KitHost::handOutAccessible(WPARAM wParam) {
  if (accessible_ == nullptr) {
    accessible_ = KitAccessible::make(hwnd(), *parts_.control);
    if (accessible_ == nullptr) return 0;
    tellChanges();
  }
  return accessible_->handOut(wParam);
}

void KitHost::tellChanges() {
  const controls::Control& control = *parts_.control;
  std::vector<controls::Described> now = {control.described()};
  for (int part = 0; part < control.parts(); ++part) now.push_back(control.describedPart(part));
  for (std::size_t at = 0; at < told_.size() && at < now.size(); ++at) {
    const auto child = static_cast<LONG>(at);
    if (now[at].name != told_[at].name) tellAccessible(EVENT_OBJECT_NAMECHANGE, hwnd(), child);
    if (now[at].checked != told_[at].checked) tellAccessible(EVENT_OBJECT_STATECHANGE, hwnd(), child);
    if (!now[at].selected || told_[at].selected) continue;
    tellAccessible(EVENT_OBJECT_SELECTION, hwnd(), child);
    if (focused_) tellAccessible(EVENT_OBJECT_FOCUS, hwnd(), child);
  }
  told_ = std::move(now);
}

void KitHost::paint() {
  PAINTSTRUCT painting;
  const HDC dc = BeginPaint(hwnd(), &painting);
  const HDC canvas = ui_.canvas.dc();
  const controls::Control& control = *parts_.control;
  controls::Surface surface = ui_.canvas.surface(control.width(), control.height());
  control.paint(surface);
  if (focused_) paintFocus(canvas);
  BitBlt(dc, 0, 0, control.width(), control.height(), canvas, 0, 0, SRCCOPY);
  EndPaint(hwnd(), &painting);
}

void KitHost::paintFocus(HDC canvas) const {
  const controls::Box place = parts_.control->focusPlace();
  if (place.width == 0) return;
  const RECT frame{place.left, place.top, place.right(), place.bottom()};
  SetTextColor(canvas, colors::Black);
  SetBkColor(canvas, colors::White);
  DrawFocusRect(canvas, &frame);
}

void KitHost::serveTimer() {
  const Timer& timer = parts_.control->timer();
  if (!changes(timerRuns_, timer.Enabled)) return;
  if (timerRuns_)
    SetTimer(hwnd(), TimerId, static_cast<UINT>(timer.Interval), nullptr);
  else
    KillTimer(hwnd(), TimerId);
}

controls::Mouse KitHost::mouseAt(std::int16_t buttons, LPARAM place) {
  return {buttons, shiftState(), static_cast<float>(static_cast<short>(LOWORD(place))),
          static_cast<float>(static_cast<short>(HIWORD(place)))};
}

bool KitHost::onMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  controls::Control& control = *parts_.control;
  if (message == WM_MOUSEMOVE) {
    control.mouseMove(mouseAt(buttonsDown(wParam), lParam));
    return true;
  }
  for (const auto& [down, doubleClick, up, button] : MouseButtons) {
    if (message != down && message != doubleClick && message != up) continue;
    const controls::Mouse mouse = mouseAt(button, lParam);
    if (message == up) {
      if (buttonsDown(wParam) == 0 && GetCapture() == hwnd()) ReleaseCapture();
      control.mouseUp(mouse);
    } else {
      if (parts_.takesFocus && button == controls::LeftButton) SetFocus(hwnd());
      SetCapture(hwnd());
      if (message == down)
        control.mouseDown(mouse);
      else
        control.mouseDoubleClick(mouse);
    }
    return true;
  }
  return false;
}

// The control itself (0), or a part of it, numbered from 1.
void KitHost::press(int part) {
  if (part > 0 && part <= parts_.control->parts())
    parts_.control->pressPart(part - 1);
  else
    parts_.control->press();
  refresh();
}

void KitHost::onKey(UINT message, WPARAM wParam) {
  controls::Control& control = *parts_.control;
  const auto code = static_cast<std::int16_t>(wParam);
  if (parts_.takesSpace && wParam == VK_SPACE) {
    if (message == WM_KEYUP) control.press();
  } else if (message == WM_KEYDOWN) {
    control.keyDown(code, shiftState());
  } else if (message == WM_KEYUP) {
    control.keyUp(code, shiftState());
  } else {
    control.keyPress(code);
  }
  refresh();
}

LRESULT KitHost::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!isLaidOut_) return OwnWindow::onMessage(message, wParam, lParam);  // it is being made
  if (onMouse(message, wParam, lParam)) {
    refresh();
    return 0;
  }
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
    case WM_CHAR:
      onKey(message, wParam);
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      focused_ = message == WM_SETFOCUS;
      InvalidateRect(hwnd(), nullptr, FALSE);
      return 0;
    case WM_SYSKEYDOWN:
      if (!parts_.takesKeys) break;
      onKey(WM_KEYDOWN, wParam);
      if (wParam == VK_F10) return 0;  // by default it opens the window's menu
      break;
    case WM_GETDLGCODE: {
      const auto* key = reinterpret_cast<const MSG*>(lParam);
      const bool wanted =
          parts_.takesKeys && key != nullptr && key->message == WM_KEYDOWN && wParam != VK_TAB;
      return parts_.dialogCode | (wanted ? DLGC_WANTALLKEYS : 0);
    }
    case BM_CLICK:
      press(static_cast<int>(wParam));
      return 0;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) == LONG{OBJID_CLIENT}) {
        if (const LRESULT object = handOutAccessible(wParam); object != 0) return object;
      }
      break;
    default:
      break;
  }
  return OwnWindow::onMessage(message, wParam, lParam);
}

}  // namespace zub
