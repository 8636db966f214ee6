// The stand-alone scheduler: waits in the foreground and starts the program at each dated wash and interval.
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "app/console/Commands.h"
#include "app/console/Store.h"
#include "platform/folder/FolderTasks.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "scheduler/AutomaticInterval.h"
#include "scheduler/DueTimes.h"

namespace zub {
namespace {

volatile std::sig_atomic_t stopped = 0;

void stop(int) {
  stopped = 1;
}

constexpr unsigned StepLength = 500000;  // microseconds

class Scheduler {
 public:
  explicit Scheduler(CommandContext& context)
      : context_(context),
        clock_(context.pc.platform().clock),
        root_(openHostDir(context.pc.folder())),
        due_(clock_.local()),
        automatic_(clock_, options_) {
    automatic_.startWash = [this] {
      wash("", washCommand);
      automatic_.timer.Enabled = true;
    };
    readTasks();
    readOptions();
  }

  void step() {
    const SystemTime now = clock_.local();
    if (now.wMinute != minute_) {
      minute_ = now.wMinute;
      guarded(toldOfOptions_, [this] { readOptions(); });
    }
    guarded(toldOfTasks_, [this] { readTasks(); });
    for (const std::size_t index : due_.look(times_, now)) wash(parameters_[index], startCommand);
    automatic_.Timer_Tick();
  }

 private:
  // A text that somebody is just changing, or has damaged, is told once; what was read before stays in force.
  template <class Work>
  static void guarded(std::string& told, Work work) {
    try {
      work();
      told.clear();
    } catch (const std::exception& error) {
      if (told != error.what()) std::fprintf(stderr, "zub: %s\n", error.what());
      told = error.what();
    }
  }

  void readTasks() {
    const std::string text = readHostText(*root_, FolderTasks::FileName).value_or("");
    if (text == tasksText_) return;
    const std::vector<TaskRecord> tasks = readTasksText(text, FolderTasks::FileName);
    tasksText_ = text;
    times_.clear();
    parameters_.clear();
    for (const TaskRecord& task : tasks) {
      for (const TriggerRecord& trigger : task.triggers) {
        times_.push_back(trigger.begin);
        parameters_.push_back(task.parameters);
      }
    }
  }

  // The interval's two options, as the store keeps them now.
  void readOptions() {
    const auto pc = openFolderPc(context_.pc.folder(), context_.loop, context_.loop, "");
    const Store store(pc->platform());
    const int on = store.options.chkRunAuto.Value();
    const int row = store.options.ComboInterval.ListIndex();
    if (on == options_.chkRunAuto.Value() && row == options_.ComboInterval.ListIndex()) return;
    options_.chkRunAuto.Value(on);
    options_.ComboInterval.ListIndex(row);
    automatic_.chkRunAuto_Click();
  }

  // Starts the program anew on the PC as it is now.
  void wash(const std::string& commandLine, int (*command)(CommandContext&)) {
    std::string told;
    guarded(told, [&] {
      const auto pc = openFolderPc(context_.pc.folder(), context_.loop, context_.loop, commandLine);
      CommandContext started{*pc, context_.loop, {}};
      command(started);
      std::fflush(stdout);
    });
  }

  CommandContext& context_;
  Clock& clock_;
  std::unique_ptr<HostDir> root_;
  DueTimes due_;
  Options options_;
  AutomaticInterval automatic_;
  std::vector<SystemTime> times_;
  std::vector<std::string> parameters_;  // beside times_
  std::string tasksText_;
  std::string toldOfTasks_;
  std::string toldOfOptions_;
  int minute_ = -1;
};

}  // namespace

int schedulerCommand(CommandContext& context) {
  context.needNoArguments("scheduler");
  if (context.pc.folder().empty()) throw UsageError("Windows has a task scheduler of its own");
  std::signal(SIGINT, stop);
  std::signal(SIGTERM, stop);
  Scheduler scheduler(context);
  while (stopped == 0) {
    scheduler.step();
    usleep(StepLength);
  }
  return exitStatus::Done;
}

}  // namespace zub
