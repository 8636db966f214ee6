#include "scheduler/DatedEntries.h"

#include "base/RuntimeError.h"
#include "scheduler/DatedTask.h"

namespace zub {
namespace {

// A failure of the facility ends the operation.
template <class Operation>
void guarded(Operation operation) {
  try {
    operation();
  } catch (const RuntimeError&) {
  }
}

}  // namespace

void DatedEntries::InitSchedulerTab() {
  guarded([&] {
    openDatedTask(pc_);
    const SystemTime now = pc_.clock.local();
    txtTime.Text = pc_.clock.timeText(now);
    txtDate.Text = pc_.clock.dateText(plusDays(now, 1));
    FillScheduleList();
  });
}

void DatedEntries::FillScheduleList() {
  lstSchedule.Clear();
  for (const std::string& line : triggerLines(openDatedTask(pc_))) lstSchedule.AddItem(line);
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
  guarded([&] {
    addDatedWash(pc_, *date, *time);
    FillScheduleList();
  });
}

void DatedEntries::cmdRemoveScheduled_Click() {
  guarded([&] {
    if (const int row = lstSchedule.ListIndex(); row != -1) removeDatedWash(pc_, row + 1);
    FillScheduleList();
  });
}

void DatedEntries::cmdAdvancedScheduler_Click() {
  guarded([&] { openDatedTask(pc_).showProperties(); });
}

}  // namespace zub
