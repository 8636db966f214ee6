// Lists of rows: plain ones, and those with check boxes.
#include <vector>

#include "ui/win32/NativeViews.h"

namespace zub {
namespace {

class RowsView : public NativeView {
 public:
  void show() override {
    const bool moved = changes(revision_, rows_->revision());
    if (!moved && !stale_) return;
    stale_ = false;
    showing_ = true;
    showRows();
    showing_ = false;
  }
  void forget() override { stale_ = true; }

 protected:
  struct Row {
    std::string text;
    bool selected = false;
  };

  explicit RowsView(const ViewSite& site) : NativeView(site), rows_(site.bound<ListRows*>()) {}

  virtual void fill(const std::vector<Row>& rows) = 0;
  virtual void check(int, bool) {}
  virtual void select(int row) = 0;

  bool isShowing() const { return showing_; }
  // The highlight has left its row: the next show gives it to the current one, unless a row is picked first.
  void rowLeft() {
    current_ = -1;
    stale_ = true;
  }
  void rowPicked(int row) {
    if (row < 0 || row >= rows_->ListCount()) return;
    current_ = row;
    rows_->ListIndex(row);
  }
  void rowChecked(int row, bool checked) {
    if (row >= rows_->ListCount() || row >= static_cast<int>(shown_.size())) return;
    shown_[static_cast<std::size_t>(row)].selected = checked;
    rows_->Selected(row, checked);
  }

 private:
  void showRows() {
    const int count = rows_->ListCount();
    bool same = count == static_cast<int>(shown_.size());
    for (int row = 0; same && row < count; ++row) same = shownRow(row).text == rows_->List(row);
    if (!same) {
      shown_.clear();
      for (int row = 0; row < count; ++row) shown_.push_back({rows_->List(row), rows_->Selected(row)});
      SendMessageA(hwnd(), WM_SETREDRAW, FALSE, 0);
      fill(shown_);
      SendMessageA(hwnd(), WM_SETREDRAW, TRUE, 0);
      InvalidateRect(hwnd(), nullptr, TRUE);
      current_ = -1;
    }
    for (int row = 0; same && row < count; ++row) {
      if (changes(shownRow(row).selected, rows_->Selected(row))) check(row, shownRow(row).selected);
    }
    if (changes(current_, rows_->ListIndex())) select(current_);
  }
  Row& shownRow(int row) { return shown_[static_cast<std::size_t>(row)]; }

  ListRows* rows_;
  std::vector<Row> shown_;
  int current_ = -1;
  unsigned revision_ = 0;
  bool stale_ = true;
  bool showing_ = false;
};

class PlainListView : public RowsView {
 public:
  explicit PlainListView(const ViewSite& site) : RowsView(site) {
    create("LISTBOX", WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, {}, Framed);
  }

  void command(WORD notice) override {
    if (notice == LBN_SELCHANGE) rowPicked(static_cast<int>(send(LB_GETCURSEL)));
  }

 private:
  void fill(const std::vector<Row>& rows) override {
    send(LB_RESETCONTENT);
    int widest = 0;
    for (const Row& row : rows) {
      sendText(LB_ADDSTRING, 0, row.text);
      widest = std::max(widest, site_.ui.text.measure(row.text, {}).width);
    }
    constexpr int Margin = 8;
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest) + Margin);
  }
  void select(int row) override { send(LB_SETCURSEL, static_cast<WPARAM>(row)); }
};

class CheckListView : public RowsView {
 public:
  explicit CheckListView(const ViewSite& site) : RowsView(site) {
    create(WC_LISTVIEWA,
           WS_TABSTOP | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
               LVS_SHAREIMAGELISTS,
           {}, Framed);
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    showBoxes();
    LVCOLUMNA column{};
    send(LVM_INSERTCOLUMNA, 0, reinterpret_cast<LPARAM>(&column));
  }

  LRESULT notify(NMHDR& notice) override {
    if (notice.code == NM_SETFOCUS) showFocus();
    if (isShowing()) return 0;
    if (notice.code == LVN_ITEMCHANGED) itemChanged(reinterpret_cast<const NMLISTVIEW&>(notice));
    // A click on the row that is current already counts as well.
    if (notice.code == NM_CLICK && !std::exchange(servedByPress_, false)) {
      const int row = reinterpret_cast<const NMITEMACTIVATE&>(notice).iItem;
      if (!highlight(row)) rowPicked(row);
    }
    return 0;
  }

 private:
  // In place of the system's own boxes.
  void showBoxes() {
    const HIMAGELIST boxes = site_.ui.checks.list(site_.ui.kit, site_.ui.canvas);
    const LRESULT own = send(LVM_SETIMAGELIST, LVSIL_STATE, reinterpret_cast<LPARAM>(boxes));
    if (own != 0) ImageList_Destroy(reinterpret_cast<HIMAGELIST>(own));
  }

  static constexpr UINT checkState(bool checked) { return INDEXTOSTATEIMAGEMASK(checked ? 2U : 1U); }

  void itemChanged(const NMLISTVIEW& change) {
    if ((change.uChanged & LVIF_STATE) == 0 || change.iItem < 0) return;
    const UINT mark = change.uNewState & LVIS_STATEIMAGEMASK;
    if (mark != 0 && mark != (change.uOldState & LVIS_STATEIMAGEMASK)) {
      rowChecked(change.iItem, mark == checkState(true));
      highlight(change.iItem);
    }
    if ((change.uOldState & ~change.uNewState & LVIS_SELECTED) != 0) rowLeft();
    if ((change.uNewState & ~change.uOldState & LVIS_SELECTED) == 0) return;
    servedByPress_ = GetKeyState(VK_LBUTTON) < 0;
    rowPicked(change.iItem);
  }

  // A click on a row's box is the control's own affair, and leaves the highlight where it was: it is moved to
  // the row, which picks it. Whether it had to be.
  bool highlight(int row) {
    if (row < 0 || send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0) return false;
    setState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    return true;
  }

  // Where the keyboard is shows on a row only.
  void showFocus() {
    if (send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) < 0)
      setState(0, LVIS_FOCUSED, LVIS_FOCUSED);
  }

  void setState(int row, UINT state, UINT mask) {
    LVITEMA item{};
    item.state = state;
    item.stateMask = mask;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  void fill(const std::vector<Row>& rows) override {
    send(LVM_DELETEALLITEMS);
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
      const Row& added = rows[static_cast<std::size_t>(row)];
      std::string shown = added.text.substr(0, added.text.find('\t'));
      LVITEMA item{};
      item.mask = LVIF_TEXT;
      item.iItem = row;
      item.pszText = shown.data();
      send(LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
      check(row, added.selected);
    }
    fitColumn(static_cast<int>(rows.size()));
  }
  // The column takes the list's width, and more where a row needs it.
  void fitColumn(int rows) {
    RECT all;
    GetClientRect(hwnd(), &all);
    const bool scrolls = rows > static_cast<int>(send(LVM_GETCOUNTPERPAGE));
    const int room = static_cast<int>(all.right) - (scrolls ? GetSystemMetrics(SM_CXVSCROLL) : 0);
    send(LVM_SETCOLUMNWIDTH, 0, LVSCW_AUTOSIZE);
    if (static_cast<int>(send(LVM_GETCOLUMNWIDTH)) < room) send(LVM_SETCOLUMNWIDTH, 0, room);
  }
  void check(int row, bool checked) override { setState(row, checkState(checked), LVIS_STATEIMAGEMASK); }
  void select(int row) override {
    setState(-1, 0, LVIS_SELECTED);
    if (row < 0) return;
    setState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  }

  bool servedByPress_ = false;  // the press of the button has picked the row
};

}  // namespace

std::unique_ptr<View> makeList(const ViewSite& site) {
  return std::make_unique<PlainListView>(site);
}
std::unique_ptr<View> makeCheckList(const ViewSite& site) {
  return std::make_unique<CheckListView>(site);
}

}  // namespace zub
