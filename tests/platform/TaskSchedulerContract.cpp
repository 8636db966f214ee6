#include <vector>

#include "base/Text.h"
#include "platform/ContractPc.h"

namespace zub {
namespace {

// The tasks, of which one is the test's.
struct Scheduled {
  template <class Pc>
  explicit Scheduled(Pc& pc) : tasks(*pc.platform().tasks), name(pc.task()) {
    tasks.refresh();
  }
  // 0 where it is not there.
  int position() {
    for (int position = 1; position <= tasks.count(); ++position) {
      if (tasks.at(position).name() == name) return position;
    }
    return 0;
  }
  ScheduleTask& refreshed() {
    tasks.refresh();
    REQUIRE(position() > 0);
    return tasks.at(position());
  }

  ScheduleTasks& tasks;
  std::string name;
};

}  // namespace

TEST_CASE_TEMPLATE("tasks: what was saved is there after a refresh, what was not is not", Pc, CONTRACT_PCS) {
  Pc pc;
  Scheduled mine(pc);
  REQUIRE(mine.position() == 0);
  const int before = mine.tasks.count();
  ScheduleTask& made = mine.tasks.add(pc.task());
  CHECK(mine.tasks.count() == before + 1);
  CHECK(mine.position() == before + 1);  // a new task is the last
  made.application("C:\\Program Files\\Zubrane\\zub");
  made.save();
  const std::size_t none = pc.deviates("no triggers") ? 1 : 0;
  ScheduleTask& task = mine.refreshed();
  CHECK(mine.tasks.count() == before + 1);
  CHECK(task.triggers().texts().size() == none);
  task.triggers().add({0, {2031, 9, 5, 5, 14, 20, 0, 0}});
  CHECK(task.triggers().texts().size() == none + 1);
  CHECK(mine.refreshed().triggers().texts().size() == none);
}

TEST_CASE_TEMPLATE("tasks: triggers are told in their order and removed by position", Pc, CONTRACT_PCS) {
  Pc pc;
  Scheduled mine(pc);
  const SystemTime first{2031, 9, 5, 5, 14, 20, 0, 0}, second{1999, 12, 5, 31, 9, 5, 0, 0},
      third{2032, 2, 0, 29, 23, 59, 0, 0};
  ScheduleTask& made = mine.tasks.add(pc.task());
  made.application("C:\\Program Files\\Zubrane\\zub");
  for (const SystemTime& time : {first, second, third}) made.triggers().add({0, time});
  made.save();
  const auto tells = [&](ScheduleTriggers& triggers, const std::vector<SystemTime>& times) {
    const std::vector<std::string> texts = triggers.texts();
    REQUIRE(texts.size() == times.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
      CHECK(contains(texts[i], pc.platform().clock->dateText(times[i])));
  };
  ScheduleTask& task = mine.refreshed();
  ScheduleTriggers& triggers = task.triggers();
  tells(triggers, {first, second, third});
  for (const int nowhere : {0, -1, 4}) CHECK(failure([&] { triggers.remove(nowhere); }) == 5);
  triggers.remove(2);
  task.save();
  tells(mine.refreshed().triggers(), {first, third});
  CHECK(failure([&] { mine.tasks.at(0); }) == 5);
  CHECK(failure([&] { mine.tasks.at(mine.tasks.count() + 1); }) == 5);
}

}  // namespace zub
