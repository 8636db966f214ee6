// Labels and text boxes.
#include <algorithm>
#include <limits>
#include <utility>

#include "platform/win32/Text.h"
#include "ui/GrowingText.h"
#include "ui/win32/NativeViews.h"

namespace zub {
namespace {

class LabelView : public NativeView {
 public:
  explicit LabelView(const ViewSite& site) : NativeView(site), label_(site.bound<const Label*>()) {
    backColor_ = site.ground;
    foreColor_ = site.spec.color;
    const DWORD align = site.spec.text == layout::Text::Centred ? SS_CENTER : SS_LEFT;
    // A label takes the mouse, so that only the window's bare ground is a handle to move it.
    create("STATIC", align | SS_NOPREFIX | SS_NOTIFY, std::string(site.spec.caption));
  }

  void show() override {
    if (label_ == nullptr) return;
    if (changes(bold_, label_->Bold)) {
      layout::TextFont shown = layout::fontOf(site_.spec.text);
      shown.bold = shown.bold || bold_;
      send(WM_SETFONT, reinterpret_cast<WPARAM>(site_.ui.fonts.font(shown)), TRUE);
    }
    if (changes(foreColor_, label_->ForeColor)) InvalidateRect(hwnd(), nullptr, TRUE);
    if (changes(caption_, label_->Caption)) text(caption_);
    if (changes(visible_, label_->Visible)) ShowWindow(hwnd(), visible_ ? SW_SHOW : SW_HIDE);
  }

 private:
  const Label* label_;
  std::string caption_;
  bool bold_ = false;
  bool visible_ = true;
};

// One line, or several where the layout says so, then to be written or only to be read.
class EditView : public NativeView {
 public:
  explicit EditView(const ViewSite& site)
      : NativeView(site), box_(site.bound<TextBox*>()), severalLines_(site.spec.kind != layout::Kind::Edit) {
    constexpr DWORD Lines = ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL;
    const DWORD use = site.spec.kind == layout::Kind::Content ? ES_READONLY : ES_WANTRETURN;
    create("EDIT", WS_TABSTOP | (severalLines_ ? Lines | use : ES_AUTOHSCROLL), {}, Framed);
    send(EM_LIMITTEXT, 0);
    if (!severalLines_) centre();
  }

  void show() override {
    const bool foreColored = changes(foreColor_, box_->ForeColor);
    const bool backColored = changes(backColor_, box_->BackColor);
    if (foreColored || backColored)
      RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    if (changes(enabled_, box_->Enabled)) EnableWindow(hwnd(), enabled_ ? TRUE : FALSE);
    if (shown_ == box_->Text) return;
    shown_ = box_->Text;
    showing_ = true;
    text(shown_);
    showing_ = false;
  }

  void command(WORD notice) override {
    if (notice != EN_CHANGE || showing_) return;
    shown_ = text();
    box_->Text = shown_;
  }

 protected:
  // The Tab key leaves a box of several lines, too.
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    const LRESULT result = NativeView::onMessage(message, wParam, lParam);
    if (message != WM_GETDLGCODE || !severalLines_) return result;
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    const bool isTab = key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_TAB;
    return isTab ? result & ~(DLGC_WANTTAB | DLGC_WANTALLKEYS | DLGC_WANTMESSAGE) : result;
  }

 private:
  // The system sets the line at the upper edge.
  void centre() {
    RECT inner;
    GetClientRect(hwnd(), &inner);
    air_ = std::max(0, (static_cast<int>(inner.bottom) - site_.ui.text.measure({}, {}).height) / 2);
    SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0, SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
  }

  TextBox* box_;
  bool severalLines_;
  std::string shown_;
  bool enabled_ = true;
  bool showing_ = false;
};

// The 9x family keeps 64 KiB of text in a box, and drops silently what comes beyond.
std::size_t roomOfBox() {
  constexpr std::size_t In9x = 60000;
  return isNtFamily() ? std::numeric_limits<std::size_t>::max() : In9x;
}

class ReportView : public NativeView {
 public:
  explicit ReportView(const ViewSite& site)
      : NativeView(site), report_(site.bound<const std::string*>()), shown_(roomOfBox()) {
    foreColor_ = site.spec.color;
    backColor_ = colors::Black;
    create("EDIT", WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL);
    send(EM_LIMITTEXT, 0);
  }

  void show() override {
    const auto change = shown_.follow(*report_);
    if (!change) return;
    if (change->anew) text({});
    const int length = GetWindowTextLengthA(hwnd());
    send(EM_SETSEL, static_cast<WPARAM>(length), length);
    sendText(EM_REPLACESEL, FALSE, change->text);
  }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS | DLGC_HASSETSEL;
    return NativeView::onMessage(message, wParam, lParam);
  }

 private:
  const std::string* report_;
  GrowingText shown_;
};

}  // namespace

std::unique_ptr<View> makeLabel(const ViewSite& site) {
  return std::make_unique<LabelView>(site);
}
std::unique_ptr<View> makeEdit(const ViewSite& site) {
  return std::make_unique<EditView>(site);
}
std::unique_ptr<View> makeReport(const ViewSite& site) {
  return std::make_unique<ReportView>(site);
}

}  // namespace zub
