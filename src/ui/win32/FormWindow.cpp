#include "ui/win32/FormWindow.h"

#include "ui/win32/CommonControls.h"
#include "ui/win32/NativeView.h"
#include "ui/win32/ShutdownReason.h"

namespace zub {

bool FormWindow::isWanted() const {
  const Form* form = window_.form();
  return form != nullptr && form->Visible;
}

void FormWindow::enable(const Form& form, bool covered) {
  if (changes(enabled_, form.Enabled && !covered)) EnableWindow(hwnd(), enabled_ ? TRUE : FALSE);
}

void FormWindow::showForm(bool covered) {
  if (!isWanted()) return;
  Form& form = *window_.form();
  if (!visible_) beginAnew(form);
  enable(form, covered);
  showControls();
  appear(form);
  showPointer(form);
  takeFocus();
}

void FormWindow::beginAnew(const Form& form) {
  for (const auto& view : views_) view->forget();
  broughtUp_ = form.shown - 1;
  if (!window_.anew) return;
  placed_ = false;
  lastFocus_ = nullptr;
  if (tabs_ == nullptr) return;
  SendMessageA(tabs_, TCM_SETCURSEL, 0, 0);
  showPage(0);
}

void FormWindow::appear(Form& form) {
  if (!std::exchange(placed_, true)) place();
  const bool comes = !std::exchange(visible_, true);
  const bool restores = form.windowState == WindowState::Normal && IsIconic(hwnd()) != 0;
  if (comes || restores)
    ShowWindow(hwnd(), form.windowState == WindowState::Normal ? SW_RESTORE : SW_SHOWMINNOACTIVE);
  if (changes(broughtUp_, form.shown)) {
    const HWND front = enabled_ ? hwnd() : GetLastActivePopup(hwnd());
    SetForegroundWindow(front);
    BringWindowToTop(front);
  }
  // A wash may not come to paint anything for a while.
  if (comes) RedrawWindow(hwnd(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void FormWindow::hideForm(bool covered) {
  if (isWanted()) return;
  if (std::exchange(visible_, false)) ShowWindow(hwnd(), SW_HIDE);
  // A main window that a wash disables is hidden first.
  const Form* form = window_.form();
  if (form != nullptr) enable(*form, covered);
}

void FormWindow::showControls() {
  for (const auto& view : views_) view->show();
}

void FormWindow::takeFocus() {
  const TextBox* box = window_.takesFocus ? window_.takesFocus() : nullptr;
  if (const auto view = boxes_.find(box); view != boxes_.end()) SetFocus(view->second->hwnd());
  if (GetActiveWindow() != hwnd()) return;
  // The control that had the keyboard may have gone or been disabled.
  const HWND focus = GetFocus();
  if (focus == nullptr || focus == hwnd() || IsWindowEnabled(focus) == 0 || IsWindowVisible(focus) == 0)
    SetFocus(GetNextDlgTabItem(hwnd(), IsChild(hwnd(), focus) != 0 ? focus : nullptr, FALSE));
}

// A letter that is typed without Alt is never an access key, as it would be in the system's own dialogs.
bool FormWindow::takesMessage(MSG& message) {
  return takesKey(message) || (message.message != WM_CHAR && IsDialogMessageA(hwnd(), &message) != 0);
}

bool FormWindow::takesKey(const MSG& key) {
  if (key.message != WM_KEYDOWN) return false;
  if (key.wParam == VK_ESCAPE) return takesEscape(key.hwnd);
  return key.wParam == VK_TAB && GetKeyState(VK_CONTROL) < 0 && turnPage(GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
}

// At once, not when the mouse next moves.
void FormWindow::showPointer(const Form& form) {
  if (!changes(pointer_, form.mousePointer)) return;
  POINT at;
  GetCursorPos(&at);
  const HWND under = WindowFromPoint(at);
  if (under == hwnd() || IsChild(hwnd(), under) != 0)
    SendMessageA(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

// A list that hangs open keeps the key.
bool FormWindow::takesEscape(HWND control) {
  const auto hangsOpen = [](HWND window) { return SendMessageA(window, CB_GETDROPPEDSTATE, 0, 0) == TRUE; };
  if (!window_.escape || hangsOpen(control) || hangsOpen(GetParent(control))) return false;
  ui_.guard.run([this] { raise(window_.escape); });
  return true;
}

// Chosen by code, a header sends no notice of its own.
bool FormWindow::turnPage(int direction) {
  if (tabs_ == nullptr) return false;
  const auto pages = static_cast<int>(pages_.size());
  const auto now = static_cast<int>(SendMessageA(tabs_, TCM_GETCURSEL, 0, 0));
  SendMessageA(tabs_, TCM_SETCURSEL, static_cast<WPARAM>((now + direction + pages) % pages), 0);
  NMHDR notice{tabs_, 0, TCN_SELCHANGE};
  ui_.guard.run([&notice] { NativeView::of(notice.hwndFrom)->notify(notice); });
  return true;
}

void FormWindow::stateChanged(WPARAM how) {
  Form* form = window_.form();
  if (form == nullptr || (how != SIZE_MINIMIZED && how != SIZE_RESTORED)) return;
  form->windowState = how == SIZE_MINIMIZED ? WindowState::Minimised : WindowState::Normal;
  raise(window_.resize);
}

void FormWindow::queryEnd() {
  if (!window_.queryEnd) return;
  const ShutdownReason reason(hwnd(), L"The wash at the end of the session is running.");
  window_.queryEnd();
}

// As if the title bar had been grabbed.
void FormWindow::drag() {
  ReleaseCapture();
  SendMessageA(hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

LRESULT FormWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      if (window_.face.backdrop.empty()) break;
      paintBackdrop(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_CLOSE:
      if (enabled_) raise(window_.close);
      return 0;
    case WM_SIZE:
      if (visible_) stateChanged(wParam);
      break;
    case WM_LBUTTONDOWN:
      grabbed_ = true;
      return 0;
    case WM_MOUSEMOVE:
      grabbed_ = grabbed_ && controls::dragsWindow(buttonsDown(wParam));
      if (grabbed_) drag();
      return 0;
    case WM_SETCURSOR: {
      const Form* form = window_.form();
      if (form == nullptr || form->mousePointer != MousePointer::Hourglass) break;
      SetCursor(LoadCursorA(nullptr, IDC_WAIT));
      return TRUE;
    }
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE)
        lastFocus_ = GetFocus();
      else if (HIWORD(wParam) == 0 && IsChild(hwnd(), lastFocus_) != 0 && IsWindowVisible(lastFocus_) != 0)
        return SetFocus(lastFocus_), 0;
      break;
    case WM_SETFOCUS:
      SetFocus(GetNextDlgTabItem(hwnd(), nullptr, FALSE));
      return 0;
    case WM_QUERYENDSESSION:
      // Whatever ends the wash or fails in it, the session may end. An installer that only asks the program to
      // close ends none.
      if ((lParam & ENDSESSION_CLOSEAPP) == 0) ui_.guard.run([this] { queryEnd(); });
      return TRUE;
    case WM_ENDSESSION:
      if (wParam != 0) raise(window_.end);
      return 0;
    default:
      break;
  }
  return OwnWindow::onMessage(message, wParam, lParam);
}

}  // namespace zub
