#include "scheduler/DatedEntries.h"

#include "base/RuntimeError.h"
#include "scheduler/DatedTask.h"

namespace zub {
namespace {

// A failure of the facility ends the operation; whoever started it is to hear of it.
template <class Operation>
void withTheFacility(Operation operation) {
  try {
    operation();
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), "The task scheduler refuses: " + error.description());
  }
}

}  // namespace

void DatedEntries::InitSchedulerTab() {
  try {
    openDatedTask(pc_);
    const SystemTime now = pc_.clock->local();
    txtTime.Text = pc_.clock->timeText(now);
    txtDate.Text = pc_.clock->dateText(plusDays(now, 1));
    FillScheduleList();
  } catch (const RuntimeError&) {
    // Nobody has asked yet for what the facility refuses.
  }
}

void DatedEntries::FillScheduleList() {
  lstSchedule.Clear();
  for (const std::string& line : openDatedTask(pc_).triggers().texts()) lstSchedule.AddItem(line);
}

std::optional<SystemTime> DatedEntries::ParseDateField(const TextBox& box, std::string_view message) {
  try {
    return pc_.clock->parse(box.Text);
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
    addDatedWash(pc_, *date, *time);
    FillScheduleList();
  });
}

void DatedEntries::cmdRemoveScheduled_Click() {
  withTheFacility([&] {
    if (const int row = lstSchedule.ListIndex(); row != -1) removeDatedWash(pc_, row + 1);
    FillScheduleList();
  });
}

void DatedEntries::cmdAdvancedScheduler_Click() {
  withTheFacility([&] { openDatedTask(pc_).showProperties(); });
}

}  // namespace zub
