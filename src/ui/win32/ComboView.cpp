#include <vector>

#include "ui/win32/NativeViews.h"

namespace zub {
namespace {

class ComboView : public NativeView {
 public:
  explicit ComboView(const ViewSite& site)
      : NativeView(site),
        combo_(site.bound<Combo*>()),
        isEditable_(site.spec.kind == layout::Kind::EditCombo) {
    constexpr int RowsDropped = 10;
    site_.place.bottom += RowsDropped * (site_.place.bottom - site_.place.top);
    create("COMBOBOX",
           WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL | (isEditable_ ? CBS_DROPDOWN : CBS_DROPDOWNLIST));
  }

  void show() override {
    if (changes(enabled_, combo_->Enabled)) EnableWindow(hwnd(), enabled_ ? TRUE : FALSE);
    const bool moved = changes(revision_, combo_->revision());
    if (!moved && !stale_) return;
    stale_ = false;
    std::vector<std::string> rows;
    for (int row = 0; row < combo_->ListCount(); ++row) rows.push_back(combo_->List(row));
    if (changes(rows_, rows)) {
      send(CB_RESETCONTENT);
      for (const std::string& row : rows_) sendText(CB_ADDSTRING, 0, row);
    }
    showChoice();
  }
  void forget() override { stale_ = true; }

  void command(WORD notice) override {
    if (notice == CBN_SELCHANGE) {
      const int row = static_cast<int>(send(CB_GETCURSEL));
      if (row >= 0 && row < combo_->ListCount()) combo_->ListIndex(row);
    }
    if (notice == CBN_EDITCHANGE) combo_->type(text());
  }

 private:
  // Choosing a row moves the caret: a text that is being typed is left alone.
  void showChoice() {
    const bool differs = isEditable_ ? text() != combo_->Text() : send(CB_GETCURSEL) != combo_->ListIndex();
    if (!differs) return;
    send(CB_SETCURSEL, static_cast<WPARAM>(combo_->ListIndex()));
    if (isEditable_ && text() != combo_->Text()) text(combo_->Text());
  }

  Combo* combo_;
  bool isEditable_;
  std::vector<std::string> rows_;
  unsigned revision_ = 0;
  bool stale_ = true;
  bool enabled_ = true;
};

}  // namespace

std::unique_ptr<View> makeCombo(const ViewSite& site) {
  return std::make_unique<ComboView>(site);
}

}  // namespace zub
