#include "ui/win32/OwnWindow.h"

#include "ui/win32/NativeView.h"

namespace zub {

void OwnWindow::create(const Creation& creation) {
  WNDCLASSA definition{};
  if (GetClassInfoA(ui_.instance, creation.className, &definition) == 0) {
    definition = {};
    definition.style = CS_DBLCLKS;
    definition.lpfnWndProc = procedure;
    definition.hInstance = ui_.instance;
    definition.hIcon = ui_.icon();
    definition.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    definition.lpszClassName = creation.className;
    RegisterClassA(&definition);
  }
  const RECT& place = creation.place;
  CreateWindowExA(creation.extendedStyle, creation.className, creation.title, creation.style, place.left,
                  place.top, place.right - place.left, place.bottom - place.top, creation.parent, nullptr,
                  ui_.instance, this);
}

std::int16_t OwnWindow::buttonsDown(WPARAM keys) {
  return static_cast<std::int16_t>(((keys & MK_LBUTTON) != 0 ? controls::LeftButton : 0) |
                                   ((keys & MK_RBUTTON) != 0 ? controls::RightButton : 0) |
                                   ((keys & MK_MBUTTON) != 0 ? controls::MiddleButton : 0));
}

LRESULT CALLBACK OwnWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    auto* created = static_cast<OwnWindow*>(creation->lpCreateParams);
    created->hwnd_ = window;
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (self == nullptr || self->ui_.guard.ended()) return DefWindowProcA(window, message, wParam, lParam);
  LRESULT result = 0;
  self->ui_.guard.run([&] { result = self->onMessage(message, wParam, lParam); });
  return result;
}

LRESULT OwnWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND: {
      RECT all;
      GetClientRect(hwnd_, &all);
      FillRect(reinterpret_cast<HDC>(wParam), &all, ui_.fonts.brush(background_));
      return 1;
    }
    case WM_COMMAND:
      if (NativeView* view = NativeView::of(reinterpret_cast<HWND>(lParam))) view->command(HIWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      auto& notice = *reinterpret_cast<NMHDR*>(lParam);
      if (NativeView* view = NativeView::of(notice.hwndFrom)) return view->notify(notice);
      break;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
      if (NativeView* view = NativeView::of(reinterpret_cast<HWND>(lParam)))
        return reinterpret_cast<LRESULT>(view->color(reinterpret_cast<HDC>(wParam)));
      break;
    default:
      break;
  }
  return byDefault(message, wParam, lParam);
}

}  // namespace zub
