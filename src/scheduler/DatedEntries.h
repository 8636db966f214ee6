// The dated entries of the scheduler tab. The list only mirrors the triggers of the program's task, row i being
// trigger i + 1. Where the facility fails, the current operation ends there: the buttons throw
// RuntimeError, the start is silent.
#pragma once

#include <optional>

#include "engine/UserFunctions.h"
#include "platform/Platform.h"
#include "state/Lists.h"

namespace zub {

class DatedEntries {
 public:
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
  void FillScheduleList();
  std::optional<SystemTime> ParseDateField(const TextBox& box, std::string_view message);

  const Platform& pc_;
  UserFunctions& user_;
};

}  // namespace zub
