#include "ui/win32/TrayWindow.h"

#include "scheduler/frmIcon.h"

namespace zub {
namespace {

constexpr UINT IconMessage = WM_MOUSEMOVE;

enum MenuCommand : UINT { Show = 1, Remove, Exit };

}  // namespace

TrayWindow::TrayWindow(Ui& ui) : OwnWindow(ui, colors::White) {
  create({"ZubraneTray", "", WS_POPUP, 0, {}, nullptr});
}

void TrayWindow::attach(frmIcon& form) {
  form_ = &form;
  form.popupMenu = [this] { popupMenu(); };
  const HMENU entries = CreatePopupMenu();
  AppendMenuA(entries, MF_STRING, Show, form.mnuShow.Caption.c_str());
  AppendMenuA(entries, MF_SEPARATOR, 0, nullptr);
  AppendMenuA(entries, MF_STRING, Remove, form.mnuRemove.Caption.c_str());
  AppendMenuA(entries, MF_STRING, Exit, form.mnuExit.Caption.c_str());
  const HMENU bar = CreateMenu();
  AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(entries), form.mnuZUB.Caption.c_str());
  SetMenu(hwnd(), bar);
}

NOTIFYICONDATAA TrayWindow::record() const {
  NOTIFYICONDATAA icon{};
  icon.cbSize = NOTIFYICONDATAA_V1_SIZE;  // 88 bytes on 32 bit: every shell knows it
  icon.hWnd = hwnd();
  icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  icon.uCallbackMessage = IconMessage;
  icon.hIcon = ui_.icon();
  return icon;
}

void TrayWindow::add(std::string_view tip) {
  NOTIFYICONDATAA icon = record();
  constexpr std::size_t Room = 64;  // of the old record, with the NUL
  tip.substr(0, Room - 1).copy(icon.szTip, Room - 1);
  Shell_NotifyIconA(NIM_ADD, &icon);
}

void TrayWindow::remove() {
  NOTIFYICONDATAA icon = record();
  Shell_NotifyIconA(NIM_DELETE, &icon);
}

// The system takes the menu away at a click elsewhere only if the window behind it is in front, and the next
// menu comes up only if that window has had a message since.
void TrayWindow::popupMenu() {
  POINT at;
  GetCursorPos(&at);
  const HMENU menu = GetSubMenu(GetMenu(hwnd()), 0);
  EnableMenuItem(menu, Remove, MF_BYCOMMAND | (form_->mnuRemove.Enabled ? MF_ENABLED : MF_GRAYED));
  SetForegroundWindow(hwnd());
  TrackPopupMenu(menu, TPM_RIGHTBUTTON, static_cast<int>(at.x), static_cast<int>(at.y), 0, hwnd(), nullptr);
  PostMessageA(hwnd(), WM_NULL, 0, 0);
}

LRESULT TrayWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (form_ == nullptr) return OwnWindow::onMessage(message, wParam, lParam);
  switch (message) {
    case IconMessage:
      form_->IconMessage(LOWORD(lParam));
      return 0;
    case WM_COMMAND:
      if (LOWORD(wParam) == Show) form_->mnuShow_Click();
      if (LOWORD(wParam) == Remove) form_->mnuRemove_Click();
      if (LOWORD(wParam) == Exit) form_->mnuExit_Click();
      return 0;
    case WM_CLOSE:
      form_->mnuExit_Click();
      return 0;
    default:
      return OwnWindow::onMessage(message, wParam, lParam);
  }
}

}  // namespace zub
