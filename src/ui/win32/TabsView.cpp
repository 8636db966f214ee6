// The headers of pages: the system's tab control, for its keyboard and its notices, in the program's look.
#include "ui/win32/NativeViews.h"

namespace zub {
namespace {

constexpr COLORREF Line = rgb(208, 208, 191);
constexpr COLORREF Accent = rgb(63, 120, 220);
constexpr COLORREF Behind = rgb(236, 235, 224);

class TabsView : public NativeView {
 public:
  explicit TabsView(const ViewSite& site) : NativeView(site) {
    create(WC_TABCONTROLA, WS_TABSTOP | WS_CLIPSIBLINGS);
    send(TCM_SETPADDING, 0, MAKELPARAM(pixels(6), pixels(3)));
    for (const layout::ControlSpec& page : site.window.controls) {
      if (page.kind == layout::Kind::Page) addPage(std::string(page.caption));
    }
  }

  LRESULT notify(NMHDR& notice) override {
    if (notice.code != TCN_SELCHANGE) return 0;
    InvalidateRect(hwnd(), nullptr, FALSE);  // the control itself would redraw parts
    site_.showPage(static_cast<int>(send(TCM_GETCURSEL)));
    raise(site_.click());
    return 0;
  }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_ERASEBKGND) return 1;
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) InvalidateRect(hwnd(), nullptr, FALSE);
    if (message != WM_PAINT) return NativeView::onMessage(message, wParam, lParam);
    PAINTSTRUCT painting;
    paint(BeginPaint(hwnd(), &painting));
    EndPaint(hwnd(), &painting);
    return 0;
  }

 private:
  void addPage(std::string caption) {
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    send(TCM_INSERTITEMA, static_cast<WPARAM>(send(TCM_GETITEMCOUNT)), reinterpret_cast<LPARAM>(&item));
  }

  // Of pixels of 96 an inch.
  int pixels(int design) const { return site_.ui.fonts.scale().pixels(design, 1); }

  void fill(HDC dc, LONG left, LONG top, LONG right, LONG bottom, COLORREF color) {
    const RECT box{left, top, right, bottom};
    FillRect(dc, &box, site_.ui.fonts.brush(color));
  }

  void paint(HDC dc) {
    RECT all;
    GetClientRect(hwnd(), &all);
    fill(dc, 0, 0, all.right, all.bottom, site_.ground);
    fill(dc, 0, all.bottom - line_, all.right, all.bottom, Line);
    const LRESULT count = send(TCM_GETITEMCOUNT);
    const LRESULT selected = send(TCM_GETCURSEL);
    for (LRESULT tab = 0; tab < count; ++tab) paintTab(dc, tab, tab == selected, all.bottom);
  }

  void paintTab(HDC dc, LRESULT tab, bool selected, LONG bottom) {
    RECT box;
    send(TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&box));
    const LONG top = selected ? 0 : pixels(3);
    const LONG left = tab == 0 ? 0 : box.left;
    const LONG foot = selected ? bottom : bottom - line_;
    const LONG in = left + line_, out = box.right - line_;
    fill(dc, in, top, out, top + line_, Line);
    fill(dc, left, top + line_, box.right, foot, Line);
    fill(dc, in, top + line_, out, foot, selected ? COLORREF{colors::Page} : Behind);
    if (selected) fill(dc, in, top, out, top + pixels(2), Accent);
    paintCaption(dc, tab, {left, top + line_, box.right, bottom - line_}, selected);
  }

  void paintCaption(HDC dc, LRESULT tab, RECT box, bool selected) {
    char caption[64] = "";
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption;
    item.cchTextMax = sizeof caption;
    send(TCM_GETITEMA, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    const HGDIOBJ before = SelectObject(dc, font());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colors::Black);
    DrawTextA(dc, caption, -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SelectObject(dc, before);
    if (selected && GetFocus() == hwnd()) {
      InflateRect(&box, -pixels(4), -pixels(3));
      DrawFocusRect(dc, &box);
    }
  }

  int line_ = site_.ui.fonts.scale().line();
};

}  // namespace

std::unique_ptr<View> makeTabs(const ViewSite& site) {
  return std::make_unique<TabsView>(site);
}

}  // namespace zub
