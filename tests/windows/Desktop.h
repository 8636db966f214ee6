// What a person sees and does at the screen: windows and controls found by what they say, the pointer, the
// keyboard. What is looked for is waited for, within a limit; what does not come fails the test.
#pragma once

#include <doctest/doctest.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace zub::drive {

inline constexpr int Patience = 30;  // seconds

// A Wine behind version 8 shows no program the pixels and tips of others, counts handles otherwise and keeps the screen's
// resolution elsewhere: what looks at these is left out there.
bool isLaterWine();

// Looks again and again until the condition holds. Whether it did within the time.
template <class Condition>
bool soon(Condition condition, int seconds = Patience) {
  constexpr DWORD Pause = 15;  // milliseconds
  const ULONGLONG end = GetTickCount() + static_cast<ULONGLONG>(seconds) * 1000;
  while (!condition()) {
    if (GetTickCount() > end) return condition();
    Sleep(Pause);
  }
  return true;
}

class Window {
 public:
  explicit Window(HWND handle = nullptr) : handle_(handle) {}

  HWND handle() const { return handle_; }
  bool operator==(const Window&) const = default;
  std::string text() const;     // what it answers when it is asked
  std::string caption() const;  // as the system knows it, even of a program that is busy; none of a text box
  std::string className() const;
  bool isVisible() const { return handle_ != nullptr && IsWindowVisible(handle_) != 0; }
  bool isEnabled() const { return IsWindowEnabled(handle_) != 0; }
  RECT place() const;  // on the screen
  bool isInTheMiddleOf(const RECT& other) const;

  // The visible control with this text (its access key's "&" counts), or the n-th of a class in Tab order.
  Window child(std::string_view text) const;
  Window child(std::string_view className, int index) const;
  bool hasChild(std::string_view text) const;
  // Whether the control comes to show a text that holds this one.
  bool comesToSay(std::string_view part) const;
  bool comesToFront() const;

  // With the pointer, in the middle.
  void click() const;
  void tick() const;  // on the box of a check control of the kit, which takes no click beside box and caption
  void clickAt(int x, int y) const;  // from the window's corner

  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  // Until the window has fetched the input that it was sent.
  void settle() const;

 private:
  HWND handle_;
};

// From pixels of 96 an inch to those of this screen.
int scaled(int pixels);

RECT wholeScreen();

// All windows of a process, and all below a window, hidden ones included.
std::vector<Window> windowsOf(DWORD process);
std::vector<Window> windowsBelow(const Window& parent);
// The control that has the keyboard.
Window focus();

// Waits for a tip with this text, of any program.
bool tipComes(std::string_view text);

// The pointer, in pixels of the screen.
void movePointer(int x, int y);
void pressButton(bool right = false);
void releaseButton(bool right = false);

// The keyboard. `chord` holds all keys but the last down while the last is pressed.
void chord(std::initializer_list<int> virtualKeys);
inline void key(int virtualKey) {
  chord({virtualKey});
}
void type(std::string_view text);
// Chooses from a list that drops down, by the row's first letters.
void choose(const Window& combo, std::string_view row);
// Types into a box in place of what it holds.
void fill(const Window& box, std::string_view text);

// Lists and headers of the system, with their rows by number.
namespace rows {

int count(const Window& list);
std::string text(const Window& list, int row);
int find(const Window& list, std::string_view text);  // waits for the row
bool isChecked(const Window& list, int row);
bool isHighlighted(const Window& list, int row);  // waits for it
void click(const Window& list, int row);
void clickCheck(const Window& list, int row);

}  // namespace rows

void openTab(const Window& window, std::string_view caption);

// The panel of ten pictures with boxes on the main tab. Rows 0 to 5 lie in view; 6 to 9 do behind toTheEnd, which runs
// it to its lower end with the arrow of its scroll bar.
namespace icons {

enum class Scrolled { No, ToTheEnd };
Window list(const Window& main);
void clickBox(const Window& main, int row, Scrolled scrolled = Scrolled::No);
void clickPicture(const Window& main, int row);
void toTheEnd(const Window& main);

}  // namespace icons

}  // namespace zub::drive
