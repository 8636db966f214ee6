// The task scheduler of a PC in a folder: its tasks are kept in the text tasks.txt.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TaskScheduler.h"
#include "platform/folder/PcError.h"
#include "platform/host/HostDir.h"

namespace zub {

struct TaskRecord {
  std::string name;
  std::string application;
  std::string parameters;
  std::string comment;
  std::vector<ScheduleTrigger> triggers;
};

// "At 2:20 PM on 9/5/2001".
std::string textOf(const ScheduleTrigger& trigger);

// UTF-8 lines "name = value": "task" begins a task, "trigger = 0 2001-09-05 14:20" stands once for each
// trigger, "#" begins a comment. PcError with the line where it is none of that.
std::vector<TaskRecord> readTasksText(std::string_view text, const std::string& file);
std::string writeTasksText(const std::vector<TaskRecord>& tasks);

// What a damaged text of tasks means to whoever opens the PC: that it is refused, or that its scheduler fails
// until the text is mended.
enum class DamagedTasks : std::uint8_t { Refused, Fail };

class FolderTasks : public ScheduleTasks {
 public:
  static constexpr const char* FileName = "tasks.txt";

  // Reads the tasks; PcError where their damaged text is refused. `root` outlives the tasks.
  FolderTasks(HostDir& root, DamagedTasks damaged);

  // PcError where the last save of a task failed: those who asked for it were told only that it did.
  void throwUnsaved() const;

  void refresh() override;
  ScheduleTask& add(std::string_view name) override;

 private:
  class Task;
  void load();  // PcError
  void saveTask(const TaskRecord& task);

  HostDir& root_;
  std::optional<PcError> unsaved_;
};

}  // namespace zub
