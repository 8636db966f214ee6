#include "scheduler/DatedTask.h"

#include "base/Text.h"

namespace zub {
namespace {

constexpr int SingleRun = 0;
constexpr int SaveNow = 0;

std::string withoutExtension(const std::string& file) {
  return file.substr(0, file.rfind('.'));
}

// As the system lists them now; null where it has none of this name.
ScheduleTask* findDatedTask(const Platform& pc) {
  pc.tasks->refresh();
  const int count = pc.tasks->count();
  for (int position = 1; position <= count; ++position) {
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
  made.save(SaveNow);
  return made;
}

std::vector<std::string> triggerLines(ScheduleTask& task) {
  std::vector<std::string> lines;
  ScheduleTriggers& triggers = task.triggers();
  const int count = triggers.count();
  for (int position = 1; position <= count; ++position) lines.push_back(triggers.at(position)->text());
  return lines;
}

std::vector<std::string> datedWashes(const Platform& pc) {
  ScheduleTask* task = findDatedTask(pc);
  return task == nullptr ? std::vector<std::string>{} : triggerLines(*task);
}

void addDatedWash(const Platform& pc, const SystemTime& date, const SystemTime& time) {
  ScheduleTask& task = openDatedTask(pc);
  const auto trigger = task.triggers().add();
  trigger->type(SingleRun);
  trigger->beginDate(date);
  trigger->startTime(time);
  task.save(SaveNow);
}

void removeDatedWash(const Platform& pc, int position) {
  ScheduleTask& task = openDatedTask(pc);
  task.triggers().remove(position);
  task.triggers().update();
  task.save(SaveNow);
}

}  // namespace zub
