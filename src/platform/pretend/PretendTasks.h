// A task scheduler that only pretends to change: the tasks of another one, with what was saved here kept in memory.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Services.h"
#include "platform/TaskScheduler.h"

namespace zub {

class PretendTasks : public ScheduleTasks {
 public:
  // `clock` words the triggers that were added here.
  PretendTasks(ScheduleTasks& beneath, Clock& clock) : beneath_(beneath), clock_(clock) {}

  void refresh() override;
  ScheduleTask& add(std::string_view name) override;

 private:
  class Task;

  ScheduleTasks& beneath_;
  Clock& clock_;
  std::map<std::string, std::vector<std::string>> saved_;  // by task: the texts of its triggers
};

}  // namespace zub
