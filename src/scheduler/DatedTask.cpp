#include "scheduler/DatedTask.h"

#include "base/Text.h"

namespace zub {
namespace {

constexpr int SingleRun = 0;

std::string withoutExtension(const std::string& file) {
  return file.substr(0, file.rfind('.'));
}

// As the system lists them now; null where it has none of this name.
ScheduleTask* findDatedTask(const Platform& pc) {
  pc.tasks->refresh();
  for (int position = 1; position <= pc.tasks->count(); ++position) {
    ScheduleTask& task = pc.tasks->at(position);
    if (task.name() == DatedTaskName) return &task;
  }
  return nullptr;
}

}  // namespace

ScheduleTask& openDatedTask(const Platform& pc) {
  const std::string path =
      withBackslash(pc.folders->programFolder()) + withoutExtension(pc.folders->programFile());
  if (ScheduleTask* found = findDatedTask(pc)) {
    found->application(path);
    found->parameters(" /SCHEDULER");
    return *found;
  }
  ScheduleTask& made = pc.tasks->add(DatedTaskName);
  made.application(path);
  made.comment("Zubrane");
  made.save();
  return made;
}

std::vector<std::string> datedWashes(const Platform& pc) {
  ScheduleTask* task = findDatedTask(pc);
  return task == nullptr ? std::vector<std::string>{} : task->triggers().texts();
}

void addDatedWash(const Platform& pc, const SystemTime& date, const SystemTime& time) {
  ScheduleTask& task = openDatedTask(pc);
  task.triggers().add(
      {SingleRun, {date.wYear, date.wMonth, date.wDayOfWeek, date.wDay, time.wHour, time.wMinute, 0, 0}});
  task.save();
}

void removeDatedWash(const Platform& pc, int position) {
  ScheduleTask& task = openDatedTask(pc);
  task.triggers().remove(position);
  task.save();
}

}  // namespace zub
