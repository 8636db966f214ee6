// Waits in the foreground while the scheduler works.
#include <unistd.h>

#include <csignal>
#include <ctime>

#include "app/console/Scheduler.h"

namespace zub {
namespace {

volatile std::sig_atomic_t stopped = 0;

void stop(int) {
  stopped = 1;
}

constexpr unsigned StepLength = 500000;  // microseconds

}  // namespace

int schedulerCommand(CommandContext& context) {
  context.needNoArguments("scheduler");
  if (context.pc.folder().empty()) throw UsageError("Windows has a task scheduler of its own");
  context.pc.needWashable();
  std::signal(SIGINT, stop);
  std::signal(SIGTERM, stop);
  Scheduler scheduler(context, std::time(nullptr));
  while (stopped == 0) {
    scheduler.step(std::time(nullptr));
    usleep(StepLength);
  }
  return exitStatus::Done;
}

}  // namespace zub
