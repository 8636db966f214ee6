#include "windows/Told.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <sstream>
#include <utility>

#include "windows/Asked.h"
// Behind it.
#include <oleacc.h>

namespace zub::drive {
namespace {

template <class... Parts>
std::string line(const Parts&... parts) {
  std::ostringstream text;
  (text << ... << parts);
  return text.str();
}

std::string hex(LONG_PTR number) {
  return line(std::hex, static_cast<unsigned>(number));
}

// Without times and dates; on one line.
std::string lasting(std::string text) {
  const bool tellsTime = text.find_first_of(":/") != std::string::npos;
  std::string shown;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isDigit = std::isdigit(static_cast<unsigned char>(text[at])) != 0;
    const bool isHalf = (text[at] == 'A' || text[at] == 'P') && text.compare(at + 1, 1, "M") == 0;
    if (text[at] == '\r') continue;
    if (!tellsTime || (!isDigit && !isHalf))
      shown += text[at] == '\n' ? '|' : text[at];
    else if (!shown.ends_with('#'))
      shown += '#';
  }
  constexpr std::size_t Enough = 300;
  return shown.substr(0, Enough);
}

// The pixels of the screen at one time.
class Screen {
 public:
  Screen() : width_(GetSystemMetrics(SM_CXSCREEN)), height_(GetSystemMetrics(SM_CYSCREEN)) {
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), width_, -height_, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
    pixels_.resize(static_cast<std::size_t>(width_ * height_));
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width_, height_);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width_, height_, screen, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height_), pixels_.data(), &info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
  }

  // The colour of the corner, that of most pixels, and roughly the one that differs most from it.
  std::string colorsIn(const RECT& part) const {
    std::map<unsigned, int> all;
    for (LONG y = part.top; y < part.bottom; ++y)
      for (LONG x = part.left; x < part.right; ++x) ++all[at(x, y)];
    if (all.empty()) return {};
    const unsigned ground =
        std::ranges::max_element(all, {}, [](const auto& one) { return one.second; })->first;
    const auto contrast = [ground](const auto& one) {
      int sum = 0;
      for (const unsigned shift : {0U, 8U, 16U})
        sum +=
            std::abs(static_cast<int>(one.first >> shift & 0xFF) - static_cast<int>(ground >> shift & 0xFF));
      return sum;
    };
    constexpr unsigned Roughly = 0xC0C0C0;
    const unsigned ink = std::ranges::max_element(all, {}, contrast)->first & Roughly;
    return line(", seen ", hex(static_cast<LONG_PTR>(at(part.left, part.top))), ' ',
                hex(static_cast<LONG_PTR>(ground)), ' ', hex(static_cast<LONG_PTR>(ink)));
  }
  int inkIn(const RECT& part) const {
    int count = 0;
    for (LONG y = part.top; y < part.bottom; ++y)
      for (LONG x = part.left; x < part.right; ++x) count += at(x, y) != at(part.left, part.top);
    return count;
  }
  // The colours from the top down at a place without letters, each with its height.
  std::string colorsAt(LONG x, const RECT& part) const {
    std::string runs;
    int count = 0;
    for (LONG y = part.top, begin = y; y < part.bottom; ++y) {
      if (y + 1 < part.bottom && at(x, y + 1) == at(x, y)) continue;
      constexpr int Enough = 9;
      if (++count <= Enough) runs += line(' ', hex(static_cast<LONG_PTR>(at(x, y))), '*', y + 1 - begin);
      begin = y + 1;
    }
    return ", down" + runs;
  }

 private:
  unsigned at(LONG x, LONG y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
    return pixels_[static_cast<std::size_t>(y * width_ + x)] & 0xFFFFFF;
  }

  int width_, height_;
  std::vector<unsigned> pixels_;
};

// A control of the kit, as its program tells it to a screen reader.
class Accessible {
 public:
  explicit Accessible(const Window& control) : corner_(control.place()) {
    static const HRESULT ready = CoInitialize(nullptr);
    REQUIRE(SUCCEEDED(ready));
    void* object = nullptr;
    REQUIRE(AccessibleObjectFromWindow(control.handle(), static_cast<DWORD>(OBJID_CLIENT),
                                       __uuidof(IAccessible), &object) == S_OK);
    object_ = static_cast<IAccessible*>(object);
  }
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;
  ~Accessible() { object_->Release(); }

  void press(LONG part) const { CHECK(object_->accDoDefaultAction(number(part)) == S_OK); }
  std::string text() const {
    VARIANT role{}, end{};
    object_->get_accRole(number(CHILDID_SELF), &role);
    std::string all = "; " + part(CHILDID_SELF);
    if (role.lVal != ROLE_SYSTEM_LIST) return all;
    LONG count = 0;
    object_->get_accChildCount(&count);
    for (LONG child = 1; child <= count; ++child) {
      all += "; " + part(child) + " leads to";
      LONG left = 0, top = 0, width = 0, height = 0;
      object_->accLocation(&left, &top, &width, &height, number(child));
      all += line(' ', object_->accHitTest(left + width / 2, top + height / 2, &end) == S_OK ? end.lVal : 0,
                  ':');
      for (const LONG direction : {NAVDIR_NEXT, NAVDIR_PREVIOUS, NAVDIR_LEFT, NAVDIR_RIGHT, NAVDIR_UP})
        all += line(' ', object_->accNavigate(direction, number(child), &end) == S_OK ? end.lVal : 0);
    }
    for (const LONG direction : {NAVDIR_FIRSTCHILD, NAVDIR_LASTCHILD})
      all +=
          line("; to ", object_->accNavigate(direction, number(CHILDID_SELF), &end) == S_OK ? end.lVal : 0);
    object_->get_accSelection(&end);
    all += line("; selected ", end.lVal);
    IDispatch* object = nullptr;
    return all + line(", an object of its own: ", object_->get_accChild(number(1), &object) == S_OK);
  }
  // Gives a part the keyboard, and answers which one has it then.
  LONG select(LONG part) const {
    CHECK(object_->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, number(part)) == S_OK);
    VARIANT focused{};
    object_->get_accFocus(&focused);
    return focused.vt == VT_I4 ? focused.lVal : -1;
  }

 private:
  using Get = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

  static VARIANT number(LONG value) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
  }
  std::string word(Get get, LONG child) const {
    BSTR text = nullptr;
    (object_->*get)(number(child), &text);
    char narrow[256] = "";
    if (text != nullptr) WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof narrow, nullptr, nullptr);
    SysFreeString(text);
    return narrow;
  }
  std::string part(LONG child) const {
    VARIANT role{}, state{};
    object_->get_accRole(number(child), &role);
    object_->get_accState(number(child), &state);
    LONG left = 0, top = 0, width = 0, height = 0;
    object_->accLocation(&left, &top, &width, &height, number(child));
    return line("role ", role.lVal, " \"", lasting(word(&IAccessible::get_accName, child)), "\" ",
                word(&IAccessible::get_accKeyboardShortcut, child), ' ',
                word(&IAccessible::get_accDefaultAction, child), " state ", hex(state.lVal), " at ",
                left - corner_.left, ',', top - corner_.top, ' ', width, 'x', height);
  }

  RECT corner_;
  IAccessible* object_ = nullptr;
};

std::string rowsOf(const Window& list) {
  const int count = rows::count(list);
  std::string text;
  for (int row = 0; row < std::min(count, 9); ++row) text += " |" + lasting(rows::text(list, row));
  return line("; ", count, " rows", text);
}

std::string checksOf(const Window& list) {
  std::string text = rowsOf(list) + ' ';
  for (int row = 0; row < rows::count(list); ++row) text += rows::isChecked(list, row) ? '*' : '-';
  RECT inner{};
  GetClientRect(list.handle(), &inner);
  return text + line("; beside its column ", inner.right - list.send(LVM_GETCOLUMNWIDTH), ", with ",
                     hex(list.send(LVM_GETEXTENDEDLISTVIEWSTYLE)), ", current ",
                     list.send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

std::string tabsOf(const Window& tabs) {
  std::string text;
  for (int page = 0; page < static_cast<int>(tabs.send(TCM_GETITEMCOUNT)); ++page) {
    Asked<TCITEMA> item;
    item.record.mask = TCIF_TEXT;
    item.record.cchTextMax = sizeof item.text;
    ask(tabs, TCM_GETITEMA, page, item, &TCITEMA::pszText);
    text += line(" |", item.text);
  }
  return line("; current ", tabs.send(TCM_GETCURSEL), " of", text);
}

std::string comboOf(const Window& combo) {
  return line("; row ", combo.send(CB_GETCURSEL), " of ", combo.send(CB_GETCOUNT));
}

// Where the part without a frame begins.
std::string insideOf(const Window& control) {
  POINT corner{};
  ClientToScreen(control.handle(), &corner);
  const RECT whole = control.place();
  return line(corner.x - whole.left, ',', corner.y - whole.top);
}

// What only controls of its class tell.
std::string ownOf(const Window& control) {
  const auto number = [&control](const char* what, UINT message) {
    return line("; ", what, ' ', static_cast<unsigned>(control.send(message)));
  };
  const std::pair<const char*, std::string (*)(const Window&)> all[] = {
      {"SysListView32", checksOf},
      {"SysTabControl32", tabsOf},
      {"ComboBox", comboOf},
      {"ListBox",
       [](const Window& list) { return rowsOf(list) + line("; current ", list.send(LB_GETCURSEL)); }}};
  const std::string name = control.className();
  for (const auto& [className, tell] : all)
    if (lstrcmpiA(name.c_str(), className) == 0) return tell(control);
  if (lstrcmpiA(name.c_str(), "Edit") == 0)
    return number("room", EM_GETLIMITTEXT) + line("; inside ", insideOf(control));
  if (lstrcmpiA(name.c_str(), "Button") == 0) return number("check", BM_GETCHECK);
  if (lstrcmpiA(name.c_str(), STATUSCLASSNAMEA) == 0) return number("parts", SB_GETPARTS);
  return {};
}

std::string lineOf(const Window& control, const Window& window) {
  const RECT place = control.place();
  const HWND holder = GetAncestor(control.handle(), GA_PARENT);
  POINT corner{place.left, place.top};
  ScreenToClient(holder, &corner);
  std::string indent = "  ";
  for (HWND outer = holder; outer != window.handle(); outer = GetAncestor(outer, GA_PARENT)) indent += "  ";
  return indent + control.className() +
         line(" \"", lasting(control.text()), "\" ", corner.x, ',', corner.y, ' ', place.right - place.left,
              'x', place.bottom - place.top, ", style ", hex(GetWindowLongA(control.handle(), GWL_STYLE)),
              ' ', hex(GetWindowLongA(control.handle(), GWL_EXSTYLE)), ", keys ",
              hex(control.send(WM_GETDLGCODE)), ownOf(control),
              focus() == control ? ", has the keyboard" : "");
}

// What it is only in sight.
std::string seen(const Window& control, const Screen& screen) {
  constexpr LONG BesideLetters = 6, BesideCaption = 3, Wide = 80;
  const RECT place = control.place();
  const std::string name = control.className();
  std::string text = screen.colorsIn(place);
  if (name == "ZubraneControl") text = Accessible(control).text() + text;
  if (name == "SysTabControl32") {
    for (int page = 0; page < static_cast<int>(control.send(TCM_GETITEMCOUNT)); ++page) {
      Asked<RECT> header;
      ask(control, TCM_GETITEMRECT, page, header);
      text += screen.colorsAt(place.left + header.record.left + BesideCaption, place);
    }
  } else if (name == "Edit") {
    text += screen.colorsAt(place.right - BesideLetters, place);
  } else if (name == "SysListView32" || (name == "ZubraneControl" && place.right - place.left > Wide)) {
    text += screen.colorsAt(place.left + BesideLetters, place);
  }
  return text;
}

std::string lineOf(const Window& window) {
  RECT client{};
  GetClientRect(window.handle(), &client);
  const Window owner(GetWindow(window.handle(), GW_OWNER));
  return line(window.className(), " \"", window.caption(), "\" ", client.right, 'x', client.bottom,
              ", style ", hex(GetWindowLongA(window.handle(), GWL_STYLE)), ' ',
              hex(GetWindowLongA(window.handle(), GWL_EXSTYLE)),
              window.isInTheMiddleOf(wholeScreen()) ? ", in the middle" : "",
              owner.handle() == nullptr ? "" : ", owned by \"" + owner.caption() + '"',
              window.send(WM_GETICON, ICON_SMALL) != 0 ? ", with an icon" : "");
}

// The tips of a window's controls, in their order.
std::string tipsOf(const Window& tips) {
  std::string text = "  tips:";
  for (int tool = 0; tool < static_cast<int>(tips.send(TTM_GETTOOLCOUNT)); ++tool) {
    Asked<TOOLINFOA> info;
    info.record.cbSize = TTTOOLINFOA_V2_SIZE;
    ask(tips, TTM_ENUMTOOLSA, tool, info, &TOOLINFOA::lpszText);
    text += line(" |", Window(reinterpret_cast<HWND>(info.record.uId)).text(), '=', info.text, ' ',
                 hex(info.record.uFlags));
  }
  return text;
}

}  // namespace

std::string Told::changes(const Window& window, std::string_view awaited) {
  struct Line {
    HWND handle;
    std::string told, seen;
    bool operator==(const Line&) const = default;
  };
  std::vector<Line> now;
  const auto rests = [&] {
    std::vector<Line> all = {{window.handle(), lineOf(window), ""}};
    const Screen screen;
    for (const Window& control : windowsBelow(window)) {
      const std::string holder = Window(GetParent(control.handle())).className();
      if (holder == "ComboBox" || holder == "SysListView32") continue;  // which are told of as a whole
      all.push_back(
          {control.handle(), lineOf(control, window), control.isVisible() ? seen(control, screen) : ""});
    }
    for (const Window& tips : zub_.windows())
      if (GetWindow(tips.handle(), GW_OWNER) == window.handle() && tips.className() == TOOLTIPS_CLASSA)
        all.push_back({tips.handle(), tipsOf(tips), ""});
    const bool told = std::ranges::any_of(
        all, [awaited](const Line& one) { return one.seen.find(awaited) != one.seen.npos; });
    return std::exchange(now, std::move(all)) == now && told;
  };
  const bool painted = soon(rests);
  CHECK(painted);
  std::string text;
  for (const Line& one : now) {
    const bool isNew = std::exchange(told_[one.handle], one.told) != one.told;
    const bool looksNew = !one.seen.empty() && std::exchange(seen_[one.handle], one.seen) != one.seen;
    if (isNew || looksNew) text += one.told + one.seen + '\n';
  }
  return text;
}

int inkOf(const Window& control) {
  return Screen().inkIn(control.place());
}

void press(const Window& control, long part) {
  Accessible(control).press(part);
}

long select(const Window& control, long part) {
  return Accessible(control).select(part);
}

namespace {

std::string heard;

void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG part, DWORD, DWORD) {
  const Window control(window);
  if (control.className() == "ZubraneControl")
    heard += line(hex(static_cast<LONG_PTR>(event)), ' ', control.caption(), ' ', part, '|');
}

}  // namespace

Listener::Listener(const Zub& zub) {
  DWORD process = 0;
  GetWindowThreadProcessId(zub.main().handle(), &process);
  hook_ = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_NAMECHANGE, nullptr, hear, process, 0,
                          WINEVENT_OUTOFCONTEXT);
  REQUIRE(hook_ != nullptr);
}

bool Listener::hears(std::string_view events) {
  const bool all = soon(
      [&] {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageA(&message);
        return heard == events;
      },
      5);
  if (!all) MESSAGE("heard: " << heard);
  heard.clear();
  return all;
}

}  // namespace zub::drive
