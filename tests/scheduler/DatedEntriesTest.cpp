#include <doctest/doctest.h>

#include "scheduler/DatedEntries.h"
#include "scheduler/FakeTasks.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

using Texts = std::vector<std::string>;

struct Tab {
  TestPc pc;
  FakeTasks scheduler;
  Platform platform = with(pc.platform(), scheduler);
  Options options;
  UserFunctions user{platform, options};
  DatedEntries dated{platform, user};

  void add(const char* date, const char* time) {
    dated.txtDate.Text = date;
    dated.txtTime.Text = time;
    dated.cmdAdd_Click();
  }
  FakeTask& task() { return scheduler.tasks.back(); }
  Texts rows() {
    Texts all;
    for (int row = 0; row < dated.lstSchedule.ListCount(); ++row) all.push_back(dated.lstSchedule.List(row));
    return all;
  }
  static Platform with(const Platform& p, ScheduleTasks& tasks) {
    return {p.codePage, p.registry, p.files,  p.drives,   p.folders, p.restart, p.shell,
            p.clock,    p.process,  p.events, p.messages, p.tray,    tasks};
  }
};

}  // namespace

TEST_CASE("the task is made once, with its comment, and gets its parameters when it is found again") {
  Tab tab;
  tab.dated.cmdAdvancedScheduler_Click();
  REQUIRE(tab.scheduler.tasks.size() == 1);
  CHECK(tab.task().name() == "ZUB");
  CHECK(tab.task().path == "C:\\Program Files\\Zubrane\\zub");
  CHECK(tab.task().remark == "Zubrane");
  CHECK(tab.task().arguments == "");
  CHECK(tab.task().calls == Texts{"save 0", "properties"});
  tab.dated.cmdAdvancedScheduler_Click();
  CHECK(tab.scheduler.tasks.size() == 1);
  CHECK(tab.task().arguments == " /SCHEDULER");
  CHECK(tab.task().calls == Texts{"save 0", "properties", "properties"});
}

TEST_CASE("the tab starts with tomorrow at this time, and the entries that there are") {
  struct {
    SystemTime now;
    const char* date;
    const char* time;
  } const rows[] = {{{2001, 9, 5, 14, 10, 20, 30, 0}, "9/15/2001", "10:20:30 AM"},
                    {{2000, 2, 1, 28, 0, 0, 0, 0}, "2/29/2000", "12:00:00 AM"},
                    {{2001, 2, 3, 28, 13, 5, 0, 0}, "3/1/2001", "1:05:00 PM"},
                    {{1999, 12, 5, 31, 23, 59, 59, 0}, "1/1/2000", "11:59:59 PM"}};
  for (const auto& row : rows) {
    Tab tab;
    tab.pc.now = row.now;
    tab.scheduler.tasks.emplace_back("ZUB").list.resize(2);
    tab.dated.InitSchedulerTab();
    CHECK(tab.dated.txtDate.Text == row.date);
    CHECK(tab.dated.txtTime.Text == row.time);
    CHECK(tab.rows().size() == 2);
    tab.dated.cmdAdd_Click();  // the fields read back what they show
    CHECK(tab.pc.messages.empty());
    CHECK(tab.task().list.size() == 3);
  }
}

TEST_CASE("an entry is added as a trigger that runs once, whatever its date") {
  struct {
    const char* date;
    const char* time;
    const char* row;
  } const rows[] = {{"9/15/2001", "10:20:30 AM", "2001-9-15 10:20"},
                    {"2/29/2004", "12:00 AM", "2004-2-29 0:0"},
                    {"12/31/2001", "23:59", "2001-12-31 23:59"},
                    {"1/1/1990", "1:05:00 PM", "1990-1-1 13:5"}};
  Tab tab;
  tab.scheduler.tasks.emplace_back("Defragment");
  tab.scheduler.tasks.emplace_back("zub");
  Texts expected;
  for (const auto& row : rows) {
    tab.add(row.date, row.time);
    expected.emplace_back(row.row);
    CHECK(tab.rows() == expected);
    CHECK(tab.task().list.back().type == 0);
    CHECK(tab.task().calls.back() == "save 0");
  }
  CHECK(tab.scheduler.tasks.size() == 3);
  CHECK(tab.task().name() == "ZUB");
  CHECK(tab.scheduler.tasks[0].list.empty());
  CHECK(tab.scheduler.tasks[1].arguments.empty());
  CHECK(tab.pc.messages.empty());
}

TEST_CASE("a date or time that cannot be read is told, gets the focus and changes nothing") {
  struct {
    const char* date;
    const char* time;
    bool wrongDate;
  } const rows[] = {{"", "10:00", true},           {"someday", "10:00", true},   {"2/29/2001", "10:00", true},
                    {"13/13/2001", "10:00", true}, {"someday", "noon", true},    {"9/15/2001", "", false},
                    {"9/15/2001", "25:00", false}, {"9/15/2001", "10:60", false}};
  for (const auto& row : rows) {
    CAPTURE(row.date);
    CAPTURE(row.time);
    Tab tab;
    tab.add(row.date, row.time);
    REQUIRE(tab.pc.messages.size() == 1);
    CHECK(tab.pc.messages[0].prompt == (row.wrongDate ? "Wrong date format" : "Wrong time format"));
    CHECK(tab.pc.messages[0].title == "ZUB Scheduler");
    CHECK(tab.pc.messages[0].style == 0);
    CHECK(tab.dated.focus == (row.wrongDate ? &tab.dated.txtDate : &tab.dated.txtTime));
    CHECK(tab.scheduler.tasks.empty());
  }
}

TEST_CASE("the current row's trigger is removed; without one the list is only filled anew") {
  Tab tab;
  for (const char* time : {"1:00", "2:00", "3:00"}) tab.add("9/15/2001", time);
  tab.task().calls.clear();
  tab.dated.lstSchedule.ListIndex(1);
  tab.dated.cmdRemoveScheduled_Click();
  CHECK(tab.task().calls == Texts{"remove 2", "update", "save 0"});
  CHECK(tab.rows() == Texts{"2001-9-15 1:0", "2001-9-15 3:0"});

  tab.task().calls.clear();
  tab.task().list.emplace_back();
  tab.dated.cmdRemoveScheduled_Click();
  CHECK(tab.task().calls.empty());
  CHECK(tab.rows().size() == 3);

  for (int left = 3; left > 0; --left) {
    tab.dated.lstSchedule.ListIndex(0);
    tab.dated.cmdRemoveScheduled_Click();
  }
  CHECK(tab.rows().empty());
  CHECK(tab.scheduler.tasks.size() == 1);
}

TEST_CASE("a row whose trigger has gone meanwhile ends the operation in silence") {
  Tab tab;
  tab.add("9/15/2001", "1:00");
  tab.task().list.clear();
  tab.task().calls.clear();
  tab.dated.lstSchedule.ListIndex(0);
  tab.dated.cmdRemoveScheduled_Click();
  CHECK(tab.task().calls == Texts{"remove 1"});
  CHECK(tab.pc.messages.empty());
}

TEST_CASE("a program that has moved tells the task its new place") {
  Tab tab;
  tab.scheduler.tasks.emplace_back("ZUB").path = "D:\\Old\\zub";
  tab.dated.InitSchedulerTab();
  CHECK(tab.task().path == "C:\\Program Files\\Zubrane\\zub");
  CHECK(tab.task().calls.empty());  // lasting only with the next save
}

TEST_CASE("a facility that fails ends each operation without a word") {
  Tab tab;
  tab.scheduler.fails = true;
  tab.dated.InitSchedulerTab();
  tab.add("9/15/2001", "1:00");
  tab.dated.cmdRemoveScheduled_Click();
  tab.dated.cmdAdvancedScheduler_Click();
  CHECK(tab.pc.messages.empty());
  CHECK(tab.scheduler.tasks.empty());
}
