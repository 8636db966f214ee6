#include "app/console/Scheduler.h"

#include <algorithm>

#include "app/console/Printable.h"
#include "app/console/Store.h"
#include "app/console/Terminal.h"
#include "base/Numbers.h"
#include "platform/folder/FolderTasks.h"
#include "platform/folder/HostText.h"
#include "scheduler/DatedTask.h"

namespace zub {
namespace {

// A text that somebody is just changing, or has damaged, is told once; what was read before stays in force.
// `told` is the failure of the last time.
template <class Work>
void guarded(const CommandContext& context, std::string& told, Work work) {
  try {
    work();
    told.clear();
  } catch (const std::exception& error) {
    if (told != error.what()) context.tell(printableLines(error.what()));
    told = error.what();
  }
}

// Some times of the interval are those of no clock.
bool isOnClock(const SystemTime& time) {
  return time.wHour < 24 && time.wMinute < 60;
}

}  // namespace

Scheduler::Scheduler(CommandContext& context, std::int64_t passing)
    : context_(context),
      clock_(*context.pc.platform().clock),
      root_(openHostDir(context.pc.folder())),
      due_(clock_.local(), passing),
      intervalDue_(clock_.local(), passing),
      automatic_(clock_, options_) {
  automatic_.startWash = [this] {
    if (waiting_.empty()) waiting_.push_back({"", washCommand});
  };
}

void Scheduler::step(std::int64_t passing) {
  const SystemTime now = clock_.local();
  if (now.wMinute != minute_) {
    minute_ = now.wMinute;
    guarded(context_, optionsFailure_, [this] { readOptions(); });
  }
  guarded(context_, tasksFailure_, [this] { readTasks(); });
  const int due = due_.look(times_, now, passing);
  for (int start = 0; start < due; ++start) waiting_.push_back({parameters_, startCommand});
  lookAtInterval(now, passing);
  tellNext(now);
  while (!waiting_.empty() && start(waiting_.front())) waiting_.pop_front();
}

// The minute of the interval may be one that the clock left out as summer time began, or that passed in another wash.
void Scheduler::lookAtInterval(const SystemTime& now, std::int64_t passing) {
  std::vector<SystemTime> times;
  if (options_.chkRunAuto.Value() == 1 && isOnClock(automatic_.NextRemoval))
    times.push_back(automatic_.NextRemoval);
  const bool due = intervalDue_.look(times, now, passing) > 0;
  automatic_.Timer_Tick();
  if (!due) return;
  automatic_.SetNextRemovalTime();
  automatic_.startWash();
}

// The PC as it is now. It can be washed while the tasks are damaged.
std::unique_ptr<ConsolePc> Scheduler::openPc(const std::string& commandLine) {
  return openFolderPc(context_.pc.folder(), context_.loop, context_.loop, commandLine, DamagedTasks::Fail,
                      context_.pc.user());
}

// The program's own task; others belong to other programs.
void Scheduler::readTasks() {
  const std::string text = readHostText(*root_, FolderTasks::FileName).value_or("");
  if (text == tasksText_) return;
  const std::vector<TaskRecord> tasks = readTasksText(text, FolderTasks::FileName);
  tasksText_ = text;
  times_.clear();
  const auto task = std::ranges::find(tasks, DatedTaskName, &TaskRecord::name);
  if (task == tasks.end()) return;
  parameters_ = task->parameters;
  for (const ScheduleTrigger& trigger : task->triggers) times_.push_back(trigger.begin);
}

// What comes next, told once.
void Scheduler::tellNext(const SystemTime& now) {
  std::int64_t first = 0;
  for (const SystemTime& time : times_) {
    const std::int64_t moment = secondsOf(time);
    if (moment > secondsOf(now) && (first == 0 || moment < first)) first = moment;
  }
  std::string next = "Next dated wash: none";
  if (first != 0) {
    const SystemTime time = timeFromSeconds(first);
    next = "Next dated wash: " + clock_.dateText(time) + " " + clock_.timeText(time);
  }
  if (options_.chkRunAuto.Value() == 1) {
    const SystemTime& time = automatic_.NextRemoval;
    next += "\nNext wash by the interval: " + twoDigits(time.wHour) + ":" + twoDigits(time.wMinute);
    if (!isOnClock(time)) next += ", which no clock shows: switch chkRunAuto off for a minute";
  }
  if (next == toldNext_) return;
  toldNext_ = next;
  terminal::write(terminal::Stream::Output, next + "\n");
  terminal::flush(terminal::Stream::Output);
}

// The interval's two options, as the store keeps them now.
void Scheduler::readOptions() {
  const auto pc = openPc("");
  const Store store(pc->platform());
  const int on = store.options.chkRunAuto.Value();
  const int row = store.options.ComboInterval.ListIndex();
  if (on == options_.chkRunAuto.Value() && row == options_.ComboInterval.ListIndex()) return;
  options_.chkRunAuto.Value(on);
  options_.ComboInterval.ListIndex(row);
  automatic_.chkRunAuto_Click();
}

// Starts the program anew; false where another program is at work on the PC, so that it has to wait. Each
// start that fails is told, and each wait once.
bool Scheduler::start(const Start& what) {
  bool done = true;
  std::string told;
  guarded(context_, told, [&] {
    const auto pc = openPc(what.commandLine);
    CommandContext started{*pc, context_.loop, {}};
    try {
      runCommand(started, what.command);
    } catch (const BusyError& busy) {
      if (!waits_) context_.tell(busy.what());
      done = false;
    }
    terminal::flush(terminal::Stream::Output);
  });
  waits_ = !done;
  return done;
}

}  // namespace zub
