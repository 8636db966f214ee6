// List boxes, lists with checks and tab headers of another process.
#include <windows.h>
// Behind it.
#include <commctrl.h>

#include "windows/Desktop.h"

namespace zub::drive {
namespace {

// A piece of the other process's memory, for messages that hand over a record.
template <class Record>
class Shared {
 public:
  explicit Shared(const Window& owner) {
    DWORD process = 0;
    GetWindowThreadProcessId(owner.handle(), &process);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
    record_ = VirtualAllocEx(process_, nullptr, sizeof(Room), MEM_COMMIT, PAGE_READWRITE);
    REQUIRE(record_ != nullptr);
  }
  Shared(const Shared&) = delete;
  Shared& operator=(const Shared&) = delete;
  ~Shared() {
    VirtualFreeEx(process_, record_, 0, MEM_RELEASE);
    CloseHandle(process_);
  }

  static constexpr int TextSize = 512;
  char* text() const { return static_cast<Room*>(record_)->text; }  // an address over there
  LPARAM address() const { return reinterpret_cast<LPARAM>(record_); }
  void put(const Record& record) { WriteProcessMemory(process_, record_, &record, sizeof record, nullptr); }
  Record get() const {
    Record record{};
    ReadProcessMemory(process_, record_, &record, sizeof record, nullptr);
    return record;
  }
  std::string getText() const {
    char here[TextSize] = "";
    ReadProcessMemory(process_, text(), here, sizeof here, nullptr);
    return here;
  }

 private:
  struct Room {
    Record record;
    char text[TextSize];
  };
  HANDLE process_;
  void* record_;
};

bool isListBox(const Window& list) {
  return lstrcmpiA(list.className().c_str(), "LISTBOX") == 0;
}

RECT placeOf(const Window& list, int row, int part) {
  Shared<RECT> place(list);
  place.put({part, 0, 0, 0});
  const auto index = static_cast<WPARAM>(row);
  if (isListBox(list))
    list.send(LB_GETITEMRECT, index, place.address());
  else
    list.send(LVM_GETITEMRECT, index, place.address());
  return place.get();
}

// The place is counted from the corner of the list's inner part.
void clickInside(const Window& list, int x, int y) {
  POINT corner{0, 0};
  ClientToScreen(list.handle(), &corner);
  const RECT all = list.place();
  list.clickAt(static_cast<int>(corner.x - all.left) + x, static_cast<int>(corner.y - all.top) + y);
}

int middle(LONG one, LONG other) {
  return static_cast<int>(one + other) / 2;
}

}  // namespace

namespace rows {

int count(const Window& list) {
  return static_cast<int>(list.send(isListBox(list) ? UINT{LB_GETCOUNT} : UINT{LVM_GETITEMCOUNT}));
}

std::string text(const Window& list, int row) {
  const auto index = static_cast<WPARAM>(row);
  if (isListBox(list)) {
    // In wide letters: asked for narrow ones, Wine overruns what is smaller than its own room.
    constexpr int WineRoom = 512;
    wchar_t wide[WineRoom] = L"";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(list.handle(), LB_GETTEXT, index, reinterpret_cast<LPARAM>(wide), SMTO_NORMAL, 5000,
                        &length);
    char text[WineRoom] = "";
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
  }
  Shared<LVITEMA> item(list);
  LVITEMA asked{};
  asked.pszText = item.text();
  asked.cchTextMax = Shared<LVITEMA>::TextSize;
  item.put(asked);
  list.send(LVM_GETITEMTEXTA, index, item.address());
  return item.getText();
}

int find(const Window& list, std::string_view wanted) {
  int found = -1;
  soon([&] {
    const int rows = count(list);
    for (int row = 0; row < rows && found == -1; ++row) {
      if (text(list, row) == wanted) found = row;
    }
    return found != -1;
  });
  REQUIRE_MESSAGE(found != -1, "no row says \"" << std::string(wanted) << "\"");
  return found;
}

bool isChecked(const Window& list, int row) {
  const LRESULT state = list.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK);
  return state == INDEXTOSTATEIMAGEMASK(2);
}

bool isHighlighted(const Window& list, int row) {
  return soon([&] { return list.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0; }, 5);
}

void click(const Window& list, int row) {
  const RECT place = placeOf(list, row, LVIR_LABEL);
  constexpr int FromTheLeft = 30;
  clickInside(list, static_cast<int>(place.left) + FromTheLeft, middle(place.top, place.bottom));
}

// The box stands left of the row's text.
void clickCheck(const Window& list, int row) {
  list.send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  const RECT place = placeOf(list, row, LVIR_LABEL);
  constexpr int ToTheBox = 10;
  clickInside(list, static_cast<int>(place.left) - ToTheBox, middle(place.top, place.bottom));
}

}  // namespace rows

void openTab(const Window& window, std::string_view caption) {
  const Window tabs = window.child(WC_TABCONTROLA, 0);
  const auto pages = static_cast<int>(tabs.send(TCM_GETITEMCOUNT));
  for (int page = 0; page < pages; ++page) {
    const auto index = static_cast<WPARAM>(page);
    Shared<TCITEMA> item(tabs);
    TCITEMA asked{};
    asked.mask = TCIF_TEXT;
    asked.pszText = item.text();
    asked.cchTextMax = Shared<TCITEMA>::TextSize;
    item.put(asked);
    tabs.send(TCM_GETITEMA, index, item.address());
    if (item.getText() != caption) continue;
    Shared<RECT> place(tabs);
    tabs.send(TCM_GETITEMRECT, index, place.address());
    const RECT header = place.get();
    tabs.clickAt(middle(header.left, header.right), middle(header.top, header.bottom));
    REQUIRE(soon([&] { return tabs.send(TCM_GETCURSEL) == page; }));
    return;
  }
  FAIL("no tab says " << std::string(caption));
}

}  // namespace zub::drive
