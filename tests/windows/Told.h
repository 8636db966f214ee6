// All that the windows of the program tell those who ask them, as text: the places and styles of the controls, what they
// say, hold and are to a screen reader, and the colours in which they are seen.
#pragma once

#include <map>
#include <string>

#include "windows/Story.h"

namespace zub::drive {

class Told {
 public:
  explicit Told(const Zub& zub) : zub_(zub) {}

  // What this window, which is in front, tells otherwise than at the last time: a line for each control, a deeper one
  // further in. Times and dates are told as "#". Waits until nothing changes any more, and a control tells `awaited`.
  std::string changes(const Window& window, std::string_view awaited = {});

 private:
  const Zub& zub_;
  std::map<HWND, std::string> told_, seen_;
};

// How many pixels of a control, as it is seen, have another colour than its corner.
int inkOf(const Window& control);

// As a screen reader does: a control of the kit, or a part of it, numbered from 1.
void press(const Window& control, long part = 0);
// Gives a part the keyboard; the part that says that it has it.
long select(const Window& control, long part);

// Hears what the program tells of changes in the kit's controls: "EVENT CAPTION PART|" for each.
class Listener {
 public:
  explicit Listener(const Zub& zub);
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener() { UnhookWinEvent(hook_); }

  bool hears(std::string_view events);  // waits for them

 private:
  HWINEVENTHOOK hook_;
};

}  // namespace zub::drive
