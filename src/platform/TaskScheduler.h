// The operating system's task scheduler: tasks, each with a program and triggers. Positions count from 1.
// What the facility refuses throws RuntimeError 440; a position that does not exist, RuntimeError 5.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Time.h"

namespace zub {

struct ScheduleTrigger {
  int type = 0;      // 0 runs once
  SystemTime begin;  // the date, with the hour and minute of the start
};

class ScheduleTriggers {
 public:
  virtual ~ScheduleTriggers() = default;
  virtual std::vector<std::string> texts() = 0;  // a line that describes each, in their order
  virtual void add(const ScheduleTrigger& trigger) = 0;
  virtual void remove(int position) = 0;  // those behind it move up
};

class ScheduleTask {
 public:
  virtual ~ScheduleTask() = default;
  virtual std::string name() = 0;
  virtual void application(std::string_view path) = 0;
  virtual void parameters(std::string_view text) = 0;
  virtual void comment(std::string_view text) = 0;
  virtual ScheduleTriggers& triggers() = 0;
  virtual void save() = 0;            // changes last from here on
  virtual void showProperties() = 0;  // the system's own dialog, over the program's window
};

// Where a position from 1 lies among so many.
inline std::size_t indexOf(int position, std::size_t count) {
  if (position < 1 || static_cast<std::size_t>(position) > count)
    throw RuntimeError(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(position - 1);
}

class ScheduleTasks {
 public:
  virtual ~ScheduleTasks() = default;
  virtual void refresh() = 0;  // reads the system's list of tasks again
  int count() const { return static_cast<int>(tasks_.size()); }
  // In stable order. The task stays the property of the collection and is valid until the next refresh.
  ScheduleTask& at(int position) { return *tasks_[indexOf(position, tasks_.size())]; }
  virtual ScheduleTask& add(std::string_view name) = 0;  // as the last one

 protected:
  ScheduleTask& keep(std::unique_ptr<ScheduleTask> task) { return *tasks_.emplace_back(std::move(task)); }

  std::vector<std::unique_ptr<ScheduleTask>> tasks_;
};

}  // namespace zub
