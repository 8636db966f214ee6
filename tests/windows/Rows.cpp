// List boxes, lists with checks, tab headers and the panel of pictures.
#include "windows/Asked.h"

namespace zub::drive {
namespace {

bool isListBox(const Window& list) {
  return lstrcmpiA(list.className().c_str(), "LISTBOX") == 0;
}

// In the row of a list, so far from the beginning of its text.
void clickRow(const Window& list, int row, int fromText) {
  Asked<RECT> place{{LVIR_LABEL, 0, 0, 0}};
  if (isListBox(list))  // whose record the system itself carries over
    list.send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place.record));
  else
    ask(list, LVM_GETITEMRECT, row, place);
  const RECT& found = place.record;
  list.clickAt(static_cast<int>(found.left) + fromText, static_cast<int>(found.top + found.bottom) / 2);
}

}  // namespace

namespace rows {

int count(const Window& list) {
  return static_cast<int>(list.send(isListBox(list) ? UINT{LB_GETCOUNT} : UINT{LVM_GETITEMCOUNT}));
}

std::string text(const Window& list, int row) {
  if (!isListBox(list)) {
    Asked<LVITEMA> item;
    item.record.cchTextMax = sizeof item.text;
    ask(list, LVM_GETITEMTEXTA, row, item, &LVITEMA::pszText);
    return item.text;
  }
  // In wide letters: asked for narrow ones, Wine overruns what is smaller than its own room.
  wchar_t wide[512] = L"";
  DWORD_PTR length = 0;
  SendMessageTimeoutW(list.handle(), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(wide),
                      SMTO_NORMAL, Patience * 1000, &length);
  char text[sizeof wide] = "";
  WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
  return text;
}

int find(const Window& list, std::string_view wanted) {
  int row = 0;
  const bool found = soon([&] {
    const int rows = count(list);
    for (row = 0; row < rows && text(list, row) != wanted;) ++row;
    return row < rows;
  });
  REQUIRE_MESSAGE(found, "no row says \"" << std::string(wanted) << "\"");
  return row;
}

bool isChecked(const Window& list, int row) {
  const LRESULT state = list.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
  return state == INDEXTOSTATEIMAGEMASK(2);
}

bool isHighlighted(const Window& list, int row) {
  return soon([&] { return list.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0; }, 5);
}

void click(const Window& list, int row) {
  constexpr int IntoTheText = 30;
  clickRow(list, row, IntoTheText);
}

void clickCheck(const Window& list, int row) {
  constexpr int ToTheBox = -10;
  list.send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  clickRow(list, row, ToTheBox);
}

}  // namespace rows

void openTab(const Window& window, std::string_view caption) {
  const Window tabs = window.child(WC_TABCONTROLA, 0);
  const auto pages = static_cast<int>(tabs.send(TCM_GETITEMCOUNT));
  for (int page = 0; page < pages; ++page) {
    Asked<TCITEMA> item;
    item.record.mask = TCIF_TEXT;
    item.record.cchTextMax = sizeof item.text;
    ask(tabs, TCM_GETITEMA, page, item, &TCITEMA::pszText);
    if (item.text != caption) continue;
    Asked<RECT> header;
    ask(tabs, TCM_GETITEMRECT, page, header);
    const RECT& place = header.record;
    tabs.clickAt(static_cast<int>(place.left + place.right) / 2,
                 static_cast<int>(place.top + place.bottom) / 2);
    REQUIRE(soon([&] { return tabs.send(TCM_GETCURSEL) == page; }));
    return;
  }
  FAIL("no tab says " << std::string(caption));
}

namespace icons {
namespace {

constexpr int AllTheWay = 80;  // pixels

// From the middle of the row's box, in pixels of 96 an inch.
void clickIn(const Window& main, int row, int right, int down) {
  constexpr int BoxX[] = {13, 69, 136, 192, 258, 314, 15, 71, 139, 195};
  constexpr int UpperRow = 17, LowerRow = 98, RowsAbove = 6;
  list(main).clickAt(scaled(BoxX[row] + right), scaled((row < RowsAbove ? UpperRow : LowerRow) + down));
}

}  // namespace

// The first control of the kit in its page.
Window list(const Window& main) {
  return main.child("ZubraneControl", 0);
}

void clickBox(const Window& main, int row, Scrolled scrolled) {
  clickIn(main, row, 0, scrolled == Scrolled::ToTheEnd ? -AllTheWay : 0);
}

void clickPicture(const Window& main, int row) {
  constexpr int Right = 28, Down = 12;
  clickIn(main, row, Right, Down);
}

// Each movement over the arrow that is held down is one step; steps that find the end do nothing.
void toTheEnd(const Window& main) {
  constexpr int Steps = 310, ArrowX = 398, ArrowY = 66;
  const Window panel = list(main);
  const RECT all = panel.place();
  movePointer(static_cast<int>(all.left) + ArrowX, static_cast<int>(all.top) + ArrowY);
  pressButton();
  panel.settle();
  for (int step = 0; step < Steps; ++step)
    panel.send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(ArrowX + step % 2, ArrowY));
  releaseButton();
  panel.settle();
}

}  // namespace icons

}  // namespace zub::drive
