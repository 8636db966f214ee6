#include "scheduler/DatedEntries.h"

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {
namespace {

constexpr int SingleRun = 0;
constexpr int SaveNow = 0;

// A failure of the facility ends the operation; whoever started it is to hear of it.
template <class Operation>
void withTheFacility(Operation operation) {
  try {
    operation();
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), "The task scheduler refuses: " + error.description());
  }
}

std::string withoutExtension(const std::string& file) {
  return file.substr(0, file.rfind('.'));
}

}  // namespace

// Finds the program's task, or makes it. A found one is told where the program lies now, which lasts from the
// next save on.
ScheduleTask& DatedEntries::OpenScheduledTask() {
  pc_.tasks.refresh();
  const std::string path =
      withBackslash(pc_.folders.programFolder()) + withoutExtension(pc_.folders.programFile());
  const int count = pc_.tasks.count();
  for (position_ = 1; position_ <= count; ++position_) {
    ScheduleTask& task = pc_.tasks.at(position_);
    if (task.name() != TaskName) continue;
    task.application(path);
    task.parameters(" /SCHEDULER");
    return task;
  }
  ScheduleTask& task = pc_.tasks.add(TaskName);
  task.application(path);
  task.comment("Zubrane");
  task.save(SaveNow);
  return task;
}

void DatedEntries::InitSchedulerTab() {
  try {
    OpenScheduledTask();
    const SystemTime now = pc_.clock.local();
    txtTime.Text = pc_.clock.timeText(now);
    txtDate.Text = pc_.clock.dateText(plusDays(now, 1));
    FillScheduleList();
  } catch (const RuntimeError&) {
    // Nobody has asked yet for what the facility refuses.
  }
}

void DatedEntries::FillScheduleList() {
  lstSchedule.Clear();
  OpenScheduledTask();
  ScheduleTriggers& triggers = pc_.tasks.at(position_).triggers();
  const int count = triggers.count();
  for (int trigger = 1; trigger <= count; ++trigger) lstSchedule.AddItem(triggers.at(trigger)->text());
}

std::optional<SystemTime> DatedEntries::ParseDateField(const TextBox& box, std::string_view message) {
  try {
    return pc_.clock.parse(box.Text);
  } catch (const RuntimeError&) {
    user_.ShowMessage(message, 0, "ZUB Scheduler", false);
    focus = &box;
    return std::nullopt;
  }
}

void DatedEntries::cmdAdd_Click() {
  const auto date = ParseDateField(txtDate, "Wrong date format");
  if (!date) return;
  const auto time = ParseDateField(txtTime, "Wrong time format");
  if (!time) return;
  withTheFacility([&] {
    OpenScheduledTask();
    ScheduleTask& task = pc_.tasks.at(position_);
    const auto trigger = task.triggers().add();
    trigger->type(SingleRun);
    trigger->beginDate(*date);
    trigger->startTime(*time);
    task.save(SaveNow);
    FillScheduleList();
  });
}

void DatedEntries::cmdRemoveScheduled_Click() {
  withTheFacility([&] {
    OpenScheduledTask();
    ScheduleTask& task = pc_.tasks.at(position_);
    if (const int row = lstSchedule.ListIndex(); row != -1) {
      task.triggers().remove(row + 1);
      task.triggers().update();
      task.save(SaveNow);
    }
    FillScheduleList();
  });
}

void DatedEntries::cmdAdvancedScheduler_Click() {
  withTheFacility([&] { OpenScheduledTask().showProperties(); });
}

}  // namespace zub
