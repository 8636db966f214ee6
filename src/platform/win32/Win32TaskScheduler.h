// The system's task scheduler by its component. It is looked for at the first refresh or add, which
// throw RuntimeError 440 where it is missing. The stored name's ".job" is not part of a task's name.
#pragma once

#include <vector>

#include "platform/TaskScheduler.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/OwnerWindow.h"

namespace zub {

class Win32Trigger : public ScheduleTrigger {
 public:
  explicit Win32Trigger(ComPointer<ITaskTrigger> trigger) : trigger_(std::move(trigger)) {}
  void type(int type) override;
  void beginDate(const SystemTime& date) override;
  void startTime(const SystemTime& time) override;
  std::string text() override;

 private:
  TASK_TRIGGER record();
  void store(TASK_TRIGGER record);

  ComPointer<ITaskTrigger> trigger_;
};

class Win32Triggers : public ScheduleTriggers {
 public:
  explicit Win32Triggers(ComPointer<ITask>& task) : task_(task) {}
  int count() override;
  std::unique_ptr<ScheduleTrigger> at(int position) override;
  std::unique_ptr<ScheduleTrigger> add() override;
  void remove(int position) override;
  void update() override {}  // the component's collection is consistent at all times

 private:
  WORD indexOf(int position);

  ComPointer<ITask>& task_;
};

// The tasks of others are only named; a task is loaded when it is first worked with.
class Win32Task : public ScheduleTask {
 public:
  // `task` may be empty: it is loaded then by its name.
  Win32Task(ComPointer<ITaskScheduler>& service, const OwnerWindow& owner, std::string name,
            ComPointer<ITask> task)
      : service_(service), owner_(owner), name_(std::move(name)), task_(std::move(task)) {}
  std::string name() override { return name_; }
  void application(std::string_view path) override;
  void parameters(std::string_view text) override;
  void comment(std::string_view text) override;
  ScheduleTriggers& triggers() override;
  void save(int how) override;
  void showProperties() override;

 private:
  ComPointer<ITask>& task();

  ComPointer<ITaskScheduler>& service_;
  const OwnerWindow& owner_;
  std::string name_;
  ComPointer<ITask> task_;
  Win32Triggers triggers_{task_};
};

class Win32TaskScheduler : public ScheduleTasks {
 public:
  explicit Win32TaskScheduler(OwnerWindow owner) : owner_(std::move(owner)) {}
  Win32TaskScheduler(const Win32TaskScheduler&) = delete;
  Win32TaskScheduler& operator=(const Win32TaskScheduler&) = delete;

  void refresh() override;
  int count() override { return static_cast<int>(tasks_.size()); }
  ScheduleTask& at(int position) override;
  ScheduleTask& add(std::string_view name) override;

 private:
  ComPointer<ITaskScheduler>& service();

  OwnerWindow owner_;
  ComLibrary library_;
  ComPointer<ITaskScheduler> service_;
  std::vector<std::unique_ptr<Win32Task>> tasks_;
};

}  // namespace zub
