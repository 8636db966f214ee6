// The system's task scheduler by its component. It is looked for at the first refresh or add, which
// throw RuntimeError 440 where it is missing. The stored name's ".job" is not part of a task's name.
#pragma once

#include "platform/TaskScheduler.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/OwnerWindow.h"

namespace zub {

class Win32TaskScheduler : public ScheduleTasks {
 public:
  explicit Win32TaskScheduler(OwnerWindow owner) : owner_(std::move(owner)) {}
  Win32TaskScheduler(const Win32TaskScheduler&) = delete;
  Win32TaskScheduler& operator=(const Win32TaskScheduler&) = delete;
  ~Win32TaskScheduler() override { tasks_.clear(); }  // while the component is there

  void refresh() override;
  ScheduleTask& add(std::string_view name) override;

 private:
  class Task;
  ComPointer<ITaskScheduler>& service();

  OwnerWindow owner_;
  ComLibrary library_;
  ComPointer<ITaskScheduler> service_;
};

}  // namespace zub
