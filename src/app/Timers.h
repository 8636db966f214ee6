// Serves the timers of the program's forms. The event loop's owner calls it in each of its turns.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "state/Controls.h"

namespace zub {

class Program;

class Timers {
 public:
  explicit Timers(Program& program);

  // Runs the next tick that is due, one a turn. `now` is the steady clock in milliseconds; a timer that missed
  // several ticks gets one.
  void serve(std::uint64_t now);

 private:
  struct Slot {
    std::function<const Timer*()> timer;  // null while its form is not loaded
    std::function<void()> tick;
    bool running = false;
    std::uint64_t due = 0;
  };
  std::array<Slot, 4> slots_;
};

}  // namespace zub
