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
}

void Timers::serve(std::uint64_t now) {
  for (Slot& slot : slots_) {
    const Timer* timer = slot.timer();
    if (timer == nullptr || !timer->Enabled) {
      slot.running = false;
      continue;
    }
    const auto interval = static_cast<std::uint64_t>(timer->Interval);
    if (!slot.running) {
      slot.running = true;
      slot.due = now + interval;
    }
    if (now < slot.due) continue;
    slot.due = now + interval;
    slot.tick();
    return;  // a tick may have run a whole wash: the others are served in the next turn, with a fresh time
  }
}

}  // namespace zub
