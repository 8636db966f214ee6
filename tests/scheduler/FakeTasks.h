// A task scheduler in memory that writes down what it is told and can be made to fail.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/TaskScheduler.h"

namespace zub {

struct FakeTrigger {
  int type = -1;
  SystemTime date;
  SystemTime time;
};

class FakeTask : public ScheduleTask, public ScheduleTriggers {
 public:
  std::string path, arguments, remark;
  std::deque<FakeTrigger> list;
  std::vector<std::string> calls;  // "save 0", "remove 2", "update", "properties"

  explicit FakeTask(std::string_view name) : name_(name) {}

  std::string name() override { return name_; }
  void application(std::string_view text) override { path = text; }
  void parameters(std::string_view text) override { arguments = text; }
  void comment(std::string_view text) override { remark = text; }
  ScheduleTriggers& triggers() override { return *this; }
  void save(int how) override { calls.push_back("save " + std::to_string(how)); }
  void showProperties() override { calls.emplace_back("properties"); }

  int count() override { return static_cast<int>(list.size()); }
  std::unique_ptr<ScheduleTrigger> at(int position) override {
    return std::make_unique<Trigger>(list[checked(position)]);
  }
  std::unique_ptr<ScheduleTrigger> add() override {
    list.emplace_back();
    return at(count());
  }
  void remove(int position) override {
    calls.push_back("remove " + std::to_string(position));
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(checked(position)));
  }
  void update() override { calls.emplace_back("update"); }

 private:
  struct Trigger : ScheduleTrigger {
    FakeTrigger& it;
    explicit Trigger(FakeTrigger& trigger) : it(trigger) {}
    void type(int type) override { it.type = type; }
    void beginDate(const SystemTime& date) override { it.date = date; }
    void startTime(const SystemTime& time) override { it.time = time; }
    std::string text() override {
      return std::to_string(it.date.wYear) + "-" + std::to_string(it.date.wMonth) + "-" +
             std::to_string(it.date.wDay) + " " + std::to_string(it.time.wHour) + ":" +
             std::to_string(it.time.wMinute);
    }
  };
  std::size_t checked(int position) {
    if (position < 1 || position > count()) throw RuntimeError(ErrorNumber::InvalidCall);
    return static_cast<std::size_t>(position - 1);
  }

  std::string name_;
};

class FakeTasks : public ScheduleTasks {
 public:
  std::deque<FakeTask> tasks;
  bool fails = false;

  void refresh() override {
    if (fails) throw RuntimeError(ErrorNumber::Automation);
  }
  int count() override { return static_cast<int>(tasks.size()); }
  ScheduleTask& at(int position) override { return tasks.at(static_cast<std::size_t>(position - 1)); }
  ScheduleTask& add(std::string_view name) override { return tasks.emplace_back(name); }
};

}  // namespace zub
