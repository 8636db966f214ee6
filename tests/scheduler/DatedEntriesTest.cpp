#include <doctest/doctest.h>

#include "base/RuntimeError.h"
#include "scheduler/DatedEntries.h"
#include "support/TempFolder.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

// What the tasks text holds for the program's task, up to its parameters.
const std::string Task = "task = ZUB\napplication = C:\\Program Files\\Zubrane\\zub\nparameters = ";
const std::string Comment = "\ncomment = Zubrane\n";

struct Tab {
  TestPc pc;
  Options options;
  UserFunctions user{pc.platform(), options};
  DatedEntries dated{pc.platform(), user};
  std::unique_ptr<HostDir> host = openHostDir(pc.hostFolder());

  std::string tasks() { return readHostFile(*host, "tasks.txt"); }
  void tasks(const std::string& text) { writeHostFile(*host, "tasks.txt", text); }
  void add(const char* date, const char* time) {
    dated.txtDate.Text = date;
    dated.txtTime.Text = time;
    dated.cmdAdd_Click();
  }
  void remove(int row) {
    dated.lstSchedule.ListIndex(row);
    dated.cmdRemoveScheduled_Click();
  }
  std::string rows() {
    std::string all;
    for (int row = 0; row < dated.lstSchedule.ListCount(); ++row) all += dated.lstSchedule.List(row) + "\n";
    return all;
  }
};

// The program's task alone, with a dialog.
struct ShownTask : ScheduleTask {
  explicit ShownTask(int& shown) : dialogs(shown) {}
  int& dialogs;

  std::string name() override { return "ZUB"; }
  void application(std::string_view) override {}
  void parameters(std::string_view) override {}
  void comment(std::string_view) override {}
  ScheduleTriggers& triggers() override { throw RuntimeError(ErrorNumber::Automation); }
  void save() override {}
  void showProperties() override { ++dialogs; }
};
struct ShownTasks : ScheduleTasks {
  int dialogs = 0;

  ShownTasks() { add("ZUB"); }
  void refresh() override {}
  ScheduleTask& add(std::string_view) override { return keep(std::make_unique<ShownTask>(dialogs)); }
};

}  // namespace

TEST_CASE("the task is made once, and gets its parameters when it is found again") {
  Tab tab;
  for (int time = 0; time < 2; ++time) {
    tab.dated.InitSchedulerTab();
    CHECK(tab.tasks() == Task + Comment);
  }
  tab.dated.txtDate.Text = "12/31/2001";
  tab.dated.cmdAdd_Click();
  CHECK(tab.tasks() == Task + " /SCHEDULER" + Comment + "trigger = 0 2001-12-31 10:20\n");
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
    tab.tasks("task = ZUB\ntrigger = 0 2030-02-28 10:00\n");
    tab.dated.InitSchedulerTab();
    CHECK(tab.dated.txtDate.Text == row.date);
    CHECK(tab.dated.txtTime.Text == row.time);
    CHECK(tab.rows() == "At 10:00 AM on 2/28/2030\n");
    tab.dated.cmdAdd_Click();  // the fields read back what they show
    CHECK(tab.pc.messages.empty());
    CHECK(tab.dated.lstSchedule.ListCount() == 2);
  }
}

TEST_CASE("entries are added behind the others, whatever their date, and removed by their row") {
  Tab tab;
  const std::string others =
      "task = Defragment\napplication = \nparameters = \ncomment = \n\n"
      "task = zub\napplication = \nparameters = \ncomment = \n\n";
  // A program that has moved: the new place lasts from the next save on.
  const std::string old = others + "task = ZUB\napplication = D:\\Old\\zub\ncomment = Zubrane\n";
  tab.tasks(old);
  tab.dated.InitSchedulerTab();
  CHECK(tab.tasks() == old);
  struct {
    const char* date;
    const char* time;
    const char* trigger;
    const char* row;
  } const rows[] = {
      {"9/15/2001", "10:20:30 AM", "trigger = 0 2001-09-15 10:20\n", "At 10:20 AM on 9/15/2001\n"},
      {"2/29/2004", "12:00 AM", "trigger = 0 2004-02-29 00:00\n", "At 12:00 AM on 2/29/2004\n"},
      {"1/1/1990", "23:59", "trigger = 0 1990-01-01 23:59\n", "At 11:59 PM on 1/1/1990\n"}};
  std::string expected = others + Task + " /SCHEDULER" + Comment;
  std::string list;
  for (const auto& row : rows) {
    tab.add(row.date, row.time);
    CHECK(tab.tasks() == (expected += row.trigger));
    CHECK(tab.rows() == (list += row.row));
  }
  tab.remove(1);
  CHECK(tab.tasks() == others + Task + " /SCHEDULER" + Comment + rows[0].trigger + rows[2].trigger);
  CHECK(tab.rows() == std::string(rows[0].row) + rows[2].row);
  // Without a row the list is only filled anew.
  tab.tasks(expected);
  tab.dated.cmdRemoveScheduled_Click();
  CHECK(tab.tasks() == expected);
  CHECK(tab.rows() == list);
  for (int left = 3; left > 0; --left) tab.remove(0);
  CHECK(tab.tasks() == others + Task + " /SCHEDULER" + Comment);
  CHECK(tab.rows().empty());
  CHECK(tab.pc.messages.empty());
}

TEST_CASE("a date or time that cannot be read is told, gets the focus and changes nothing") {
  struct {
    const char* date;
    const char* time;
    bool wrongDate;
  } const rows[] = {{"", "10:00", true},      {"2/29/2001", "10:00", true},  {"someday", "noon", true},
                    {"9/15/2001", "", false}, {"9/15/2001", "25:00", false}, {"9/15/2001", "10:60", false}};
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
    CHECK(tab.tasks().empty());
  }
}

TEST_CASE("what the facility refuses ends the operation; only the start is silent about it") {
  Tab tab;
  tab.add("9/15/2001", "1:00");
  const auto refusal = [](const auto& operation) -> std::string {
    try {
      operation();
    } catch (const RuntimeError& error) {
      return error.description();
    }
    return "";
  };
  struct {
    const char* text;  // the entry has gone meanwhile, or all have
    const char* refusal;
  } const rows[] = {{"task = ZUB\n", "The task scheduler refuses: Invalid procedure call or argument"},
                    {"damaged\n", "The task scheduler refuses: Automation error"}};
  for (const auto& row : rows) {
    CAPTURE(row.text);
    tab.tasks(row.text);
    CHECK(refusal([&] { tab.dated.cmdAdvancedScheduler_Click(); }) ==
          "The task scheduler refuses: Automation error");
    CHECK(refusal([&] { tab.remove(tab.dated.lstSchedule.ListCount() - 1); }) == row.refusal);
    CHECK(tab.tasks() == row.text);
  }
  CHECK(refusal([&] { tab.add("9/15/2001", "1:00"); }) == rows[1].refusal);
  CHECK(refusal([&] { tab.dated.InitSchedulerTab(); }).empty());
  CHECK(tab.tasks() == "damaged\n");
  CHECK(tab.pc.messages.empty());
}

TEST_CASE("Advanced opens the dialog of the task") {
  Tab tab;
  ShownTasks tasks;
  Platform shown = tab.pc.platform();
  shown.tasks = &tasks;
  DatedEntries dated(shown, tab.user);
  dated.cmdAdvancedScheduler_Click();
  CHECK(tasks.dialogs == 1);
}
