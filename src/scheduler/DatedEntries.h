// The dated entries of the scheduler tab: each is a trigger of the one task "ZUB" of the operating system's
// task scheduler, which starts the program with /SCHEDULER at its time. Nothing of them is kept by the
// program; the list only mirrors the triggers, row i being trigger i + 1.
//
// Where the facility fails, the current operation ends there: the buttons throw RuntimeError, the start is silent.
#pragma once

#include <optional>

#include "engine/UserFunctions.h"
#include "platform/Platform.h"
#include "state/Lists.h"

namespace zub {

class DatedEntries {
 public:
  static constexpr std::string_view TaskName = "ZUB";

  DatedEntries(const Platform& pc, UserFunctions& user) : pc_(pc), user_(user) {}

  ListRows lstSchedule;
  TextBox txtDate;
  TextBox txtTime;
  const TextBox* focus = nullptr;  // the box that is to have the focus, after a message

  void InitSchedulerTab();
  void cmdAdd_Click();
  void cmdRemoveScheduled_Click();
  void cmdAdvancedScheduler_Click();

 private:
  ScheduleTask& OpenScheduledTask();
  void FillScheduleList();
  std::optional<SystemTime> ParseDateField(const TextBox& box, std::string_view message);

  const Platform& pc_;
  UserFunctions& user_;
  int position_ = 1;  // of the task in the collection, from 1
};

}  // namespace zub
