// Waits in the foreground while the scheduler works.
#include <unistd.h>

#include <ctime>

#include "app/console/Interrupt.h"
#include "app/console/Scheduler.h"

namespace zub {
namespace {

constexpr unsigned StepLength = 500000;  // microseconds

}  // namespace

int schedulerCommand(CommandContext& context) {
  if (context.pc.folder().empty()) throw Refusal("Windows has a task scheduler of its own");
  context.pc.needWashable();
  interrupt::watch();
  Scheduler scheduler(context, std::time(nullptr));
  while (interrupt::signal() == 0) {
    scheduler.step(std::time(nullptr));
    usleep(StepLength);
  }
  return exitStatus::Done;
}

}  // namespace zub
