#include "app/Timers.h"

#include "app/Program.h"

namespace zub {

Timers::Timers(Program& program) {
  AutoLoad<frmAnimated>& animated = program.engine.animated;
  const auto ofProgress = [&animated](Timer frmAnimated::State::*timer) {
    return [&animated, timer]() -> const Timer* {
      return animated.loaded() ? &(animated.peek().state.*timer) : nullptr;
    };
  };
  slots_[0] = {[&program] { return &program.main.automatic.timer; },
               [&program] { program.main.automatic.Timer_Tick(); }};
  slots_[1] = {ofProgress(&frmAnimated::State::Timer), [&animated] { animated->Timer_Tick(); }};
  slots_[2] = {ofProgress(&frmAnimated::State::CloseWindowTimer),
               [&animated] { animated->CloseWindowTimer_Tick(); }};
  slots_[3] = {[&program] { return &program.main.preview.Timer; },
               [&program] { program.main.preview.Timer_Tick(); }};
}

// The one that has waited longest: a slow tick does not starve the other timers.
void Timers::serve(std::uint64_t now) {
  Slot* next = nullptr;
  for (Slot& slot : slots_) {
    const Timer* timer = slot.timer();
    if (timer == nullptr || !timer->Enabled) {
      slot.running = false;
      continue;
    }
    if (!slot.running) {
      slot.running = true;
      slot.due = now + static_cast<std::uint64_t>(timer->Interval);
    }
    if (now >= slot.due && (next == nullptr || slot.due < next->due)) next = &slot;
  }
  if (next == nullptr) return;
  // A tick may run a whole wash: the others are served in the next turn, with a fresh time.
  next->due = now + static_cast<std::uint64_t>(next->timer()->Interval);
  next->tick();
}

}  // namespace zub
