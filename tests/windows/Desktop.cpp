#include "windows/Desktop.h"

#include <algorithm>
#include <cstdlib>

#include "platform/host/win32/LoadedCall.h"

namespace zub::drive {
namespace {

constexpr UINT AnswerTime = 20000;  // milliseconds

// Places are told in the screen's own pixels, whatever the scale of the program that is driven.
const BOOL countsTruePixels = [] {
  using Call = BOOL(WINAPI*)();
  return reinterpret_cast<Call>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("user32"), "SetProcessDPIAware")))();
}();

BOOL CALLBACK addTo(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<Window>*>(list)->emplace_back(window);
  return TRUE;
}

void input(const INPUT& event) {
  INPUT sent = event;
  REQUIRE(SendInput(1, &sent, sizeof sent) == 1);
}

// Where the pointer was last sent, in pixels of the screen. What a button does is told with its place: a late
// echo of an earlier movement, which the host's screen sends to the window under it, may have carried the pointer
// back.
POINT sentTo{};

void pointer(DWORD flags) {
  // The system counts width and height of the whole desktop, which may be several screens, as 65536 each.
  const auto share = [](LONG pixel, int size) { return (pixel * 65536 + size - 1) / size; };
  INPUT event{};
  event.type = INPUT_MOUSE;
  event.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK;
  event.mi.dx = share(sentTo.x - GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_CXVIRTUALSCREEN));
  event.mi.dy = share(sentTo.y - GetSystemMetrics(SM_YVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN));
  input(event);
}

void stroke(int virtualKey, bool down) {
  INPUT event{};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = static_cast<WORD>(virtualKey);
  event.ki.wScan = static_cast<WORD>(MapVirtualKeyA(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC));
  event.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  input(event);
}

// Two clicks in turn on one control are no double-click: each is a little off the last.
int apart() {
  static int pixels = 0;
  constexpr int MoreThanADoubleClick = 6;
  return pixels = MoreThanADoubleClick - pixels;
}

// The window that gets what is typed.
void settleKeyboard() {
  const HWND front = GetForegroundWindow();
  if (front != nullptr) Window(front).settle();
}

}  // namespace

LRESULT Window::send(UINT message, WPARAM wParam, LPARAM lParam) const {
  DWORD_PTR result = 0;
  SetLastError(0);
  const LRESULT answered =
      SendMessageTimeoutA(handle_, message, wParam, lParam, SMTO_NORMAL, AnswerTime, &result);
  REQUIRE_MESSAGE((answered != 0 || GetLastError() != ERROR_TIMEOUT), "the program does not answer");
  return static_cast<LRESULT>(result);
}

// A message that is sent is answered before input is fetched: the pause lets the loop go round once.
void Window::settle() const {
  constexpr DWORD ALoop = 5;  // milliseconds
  send(WM_NULL);
  Sleep(ALoop);
  send(WM_NULL);
}

std::string Window::caption() const {
  char text[1024] = "";
  GetWindowTextA(handle_, text, sizeof text);
  return text;
}

std::string Window::text() const {
  std::string text(static_cast<std::size_t>(send(WM_GETTEXTLENGTH)) + 1, '\0');
  const LRESULT length = send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(std::max<LRESULT>(length, 0)));
  return text;
}

std::string Window::className() const {
  char name[128] = "";
  GetClassNameA(handle_, name, sizeof name);
  return name;
}

RECT Window::place() const {
  RECT place{};
  GetWindowRect(handle_, &place);
  return place;
}

bool Window::isInTheMiddleOf(const RECT& other) const {
  const RECT own = place();
  const auto isNear = [](LONG first, LONG second) { return std::abs(first - second) <= 2; };
  return isNear(own.left + own.right, other.left + other.right) &&
         isNear(own.top + own.bottom, other.top + other.bottom);
}

RECT wholeScreen() {
  return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

bool Window::hasChild(std::string_view text) const {
  return std::ranges::any_of(
      windowsBelow(*this), [&](const Window& child) { return child.isVisible() && child.caption() == text; });
}

Window Window::child(std::string_view text) const {
  Window found;
  soon([&] {
    for (const Window& one : windowsBelow(*this)) {
      if (found.handle_ == nullptr && one.isVisible() && one.caption() == text) found = one;
    }
    return found.handle_ != nullptr;
  });
  REQUIRE_MESSAGE(found.handle_ != nullptr, "no control says \"" << std::string(text) << "\"");
  return found;
}

Window Window::child(std::string_view className, int index) const {
  for (const Window& one : windowsBelow(*this)) {
    const bool fits = lstrcmpiA(one.className().c_str(), std::string(className).c_str()) == 0;
    if (fits && one.isVisible() && index-- == 0) return one;
  }
  FAIL("no further control of the class " << std::string(className));
  return Window();
}

bool Window::comesToSay(std::string_view part) const {
  return soon([&] { return text().find(part) != std::string::npos; });
}

bool Window::comesToFront() const {
  constexpr int Seconds = 5;
  return soon([&] { return GetForegroundWindow() == handle_; }, Seconds);
}

void Window::clickAt(int x, int y) const {
  const RECT all = place();
  movePointer(static_cast<int>(all.left) + x, static_cast<int>(all.top) + y);
  pressButton();
  releaseButton();
  settle();
}

void Window::click() const {
  const RECT all = place();
  clickAt(static_cast<int>(all.right - all.left) / 2 - apart(), static_cast<int>(all.bottom - all.top) / 2);
}

int scaled(int pixels) {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return MulDiv(pixels, dpi, 96);
}

void Window::tick() const {
  const int boxEnd = scaled(16);
  const RECT all = place();
  clickAt(boxEnd - apart(), static_cast<int>(all.bottom - all.top) / 2);
}

std::vector<Window> windowsOf(DWORD process) {
  std::vector<Window> all;
  EnumWindows(addTo, reinterpret_cast<LPARAM>(&all));
  std::erase_if(all, [&](const Window& window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window.handle(), &owner);
    return owner != process;
  });
  return all;
}

std::vector<Window> windowsBelow(const Window& parent) {
  std::vector<Window> all;
  EnumChildWindows(parent.handle(), addTo, reinterpret_cast<LPARAM>(&all));
  return all;
}

Window focus() {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(GetForegroundWindow(), nullptr), &thread);
  return Window(thread.hwndFocus);
}

bool isLaterWine() {
  const auto version = loadedCall<const char*(CDECL*)()>("ntdll.dll", "wine_get_version");
  constexpr int Known = 8;
  return version != nullptr && std::atoi(version()) > Known;
}

bool tipComes(std::string_view text) {
  return soon([text] {
    for (HWND tip = nullptr; (tip = FindWindowExA(nullptr, tip, "tooltips_class32", nullptr)) != nullptr;)
      if (IsWindowVisible(tip) != 0 && Window(tip).text() == text) return true;
    return false;
  });
}

void movePointer(int x, int y) {
  sentTo = {x, y};
  const auto stays = [&] {
    pointer(0);
    Window(WindowFromPoint(sentTo)).settle();
    POINT now{};
    GetCursorPos(&now);
    return now.x == x && now.y == y;
  };
  REQUIRE(soon(stays));
}

void pressButton(bool right) {
  pointer(right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN);
}

void releaseButton(bool right) {
  pointer(right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP);
}

void chord(std::initializer_list<int> virtualKeys) {
  for (const int one : virtualKeys) stroke(one, true);
  for (auto one = std::rbegin(virtualKeys); one != std::rend(virtualKeys); ++one) stroke(*one, false);
  settleKeyboard();
}

void type(std::string_view text) {
  constexpr int WithShift = 1;
  for (const char letter : text) {
    const int found = VkKeyScanA(letter);
    REQUIRE_MESSAGE(found != -1, "no key for " << letter);
    if ((found >> 8) == WithShift)
      chord({VK_SHIFT, found & 0xFF});
    else
      chord({found & 0xFF});
  }
}

void choose(const Window& combo, std::string_view row) {
  const auto hangsOpen = [&] { return combo.send(CB_GETDROPPEDSTATE) != 0; };
  combo.click();
  REQUIRE(soon(hangsOpen));
  type(row);
  key(VK_RETURN);
  REQUIRE(soon([&] { return !hangsOpen() && combo.text().starts_with(row); }));
}

void fill(const Window& box, std::string_view text) {
  box.click();
  REQUIRE(soon([&] { return focus() == box; }));
  key(VK_HOME);
  chord({VK_SHIFT, VK_END});
  key(VK_DELETE);
  type(text);
  const bool typed = soon([&] { return box.text() == text; });
  REQUIRE_MESSAGE(typed, "the box says \"" << box.text() << '"');
}

}  // namespace zub::drive
