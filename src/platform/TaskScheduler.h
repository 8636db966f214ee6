// The operating system's task scheduler: tasks, each with a program and triggers. Positions count from 1.
// What the facility refuses throws RuntimeError 440; a position that does not exist, RuntimeError 5.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/Time.h"

namespace zub {

class ScheduleTrigger {
 public:
  virtual ~ScheduleTrigger() = default;
  virtual void type(int type) = 0;                     // 0 runs once
  virtual void beginDate(const SystemTime& date) = 0;  // the date fields count
  virtual void startTime(const SystemTime& time) = 0;  // hour and minute count
  virtual std::string text() = 0;                      // a line that describes the trigger
};

class ScheduleTriggers {
 public:
  virtual ~ScheduleTriggers() = default;
  virtual int count() = 0;
  virtual std::unique_ptr<ScheduleTrigger> at(int position) = 0;
  virtual std::unique_ptr<ScheduleTrigger> add() = 0;
  virtual void remove(int position) = 0;
  virtual void update() = 0;  // makes the collection consistent after a removal
};

class ScheduleTask {
 public:
  virtual ~ScheduleTask() = default;
  virtual std::string name() = 0;
  virtual void application(std::string_view path) = 0;
  virtual void parameters(std::string_view text) = 0;
  virtual void comment(std::string_view text) = 0;
  virtual ScheduleTriggers& triggers() = 0;
  virtual void save(int how) = 0;     // 0; changes last from here on
  virtual void showProperties() = 0;  // the system's own dialog, over the program's window
};

class ScheduleTasks {
 public:
  virtual ~ScheduleTasks() = default;
  virtual void refresh() = 0;  // reads the system's list of tasks again
  virtual int count() = 0;
  // In stable order. The task stays the property of the collection and is valid until the next refresh or add.
  virtual ScheduleTask& at(int position) = 0;
  virtual ScheduleTask& add(std::string_view name) = 0;
};

}  // namespace zub
