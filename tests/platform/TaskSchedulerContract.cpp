#include <vector>

#include "base/Text.h"
#include "platform/ContractPc.h"

namespace zub {
namespace {

// The position of the task, 0 where it is not there.
int positionOf(ScheduleTasks& tasks, const std::string& name) {
  for (int position = 1; position <= tasks.count(); ++position) {
    if (tasks.at(position).name() == name) return position;
  }
  return 0;
}

}  // namespace

TEST_CASE_TEMPLATE("tasks: what was saved is there after a refresh, what was not is not", Pc, CONTRACT_PCS) {
  Pc pc;
  ScheduleTasks& tasks = *pc.platform().tasks;
  tasks.refresh();
  REQUIRE(positionOf(tasks, pc.task()) == 0);
  const int before = tasks.count();
  {
    ScheduleTask& task = tasks.add(pc.task());
    CHECK(tasks.count() == before + 1);
    CHECK(positionOf(tasks, pc.task()) == before + 1);  // a new task is the last
    task.application("C:\\Program Files\\Zubrane\\zub");
    task.comment("Zubrane");
    task.save();
  }
  tasks.refresh();
  CHECK(tasks.count() == before + 1);
  const int position = positionOf(tasks, pc.task());
  REQUIRE(position > 0);
  ScheduleTask& task = tasks.at(position);
  const std::size_t none = pc.deviates("no triggers") ? 1 : 0;
  CHECK(task.triggers().texts().size() == none);
  task.parameters(" /SCHEDULER");
  task.triggers().add({0, {2031, 9, 5, 5, 14, 20, 0, 0}});
  CHECK(task.triggers().texts().size() == none + 1);
  tasks.refresh();
  CHECK(tasks.at(positionOf(tasks, pc.task())).triggers().texts().size() == none);
}

TEST_CASE_TEMPLATE("tasks: triggers are told in their order and removed by position", Pc, CONTRACT_PCS) {
  Pc pc;
  ScheduleTasks& tasks = *pc.platform().tasks;
  Clock& clock = *pc.platform().clock;
  const std::vector<SystemTime> times = {
      {2031, 9, 5, 5, 14, 20, 0, 0}, {1999, 12, 5, 31, 9, 5, 0, 0}, {2032, 2, 0, 29, 23, 59, 0, 0}};
  tasks.refresh();
  ScheduleTask& made = tasks.add(pc.task());
  made.application("C:\\Program Files\\Zubrane\\zub");
  for (const SystemTime& time : times) made.triggers().add({0, time});
  made.save();
  tasks.refresh();
  ScheduleTask& task = tasks.at(positionOf(tasks, pc.task()));
  ScheduleTriggers& triggers = task.triggers();
  const std::vector<std::string> texts = triggers.texts();
  REQUIRE(texts.size() == 3);
  for (std::size_t i = 0; i < 3; ++i) {
    CAPTURE(texts[i]);
    CHECK(contains(texts[i], clock.dateText(times[i])));
  }
  for (const int nowhere : {0, -1, 4}) CHECK(failure([&] { triggers.remove(nowhere); }) == 5);
  triggers.remove(2);
  task.save();
  tasks.refresh();
  const std::vector<std::string> left = tasks.at(positionOf(tasks, pc.task())).triggers().texts();
  CHECK(left == std::vector<std::string>{texts[0], texts[2]});
  CHECK(failure([&] { tasks.at(0); }) == 5);
  CHECK(failure([&] { tasks.at(tasks.count() + 1); }) == 5);
}

}  // namespace zub
