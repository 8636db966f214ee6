#include <doctest/doctest.h>

#include "base/RuntimeError.h"
#include "scheduler/DatedEntries.h"
#include "support/Golden.h"
#include "support/Story.h"
#include "support/TempFolder.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

struct Tab {
  TestPc pc;
  Options options;
  UserFunctions user{pc.platform(), options};
  DatedEntries dated{pc.platform(), user};
  std::unique_ptr<HostDir> host = openHostDir(pc.hostFolder());
  Story& story;

  // A fresh PC with these tasks, whose tab goes on with the story.
  Tab(Story& told, std::string_view title, const std::string& text = "") : story(told) {
    if (!text.empty()) tasks(text);
    story.look = [this] { return shown(); };
    story.settle();
    story.chapter(title);
  }
  std::string tasks() { return readHostFile(*host, "tasks.txt"); }
  void tasks(const std::string& text) { writeHostFile(*host, "tasks.txt", text); }
  Story::Things shown() {
    std::string rows, messages;
    for (int row = 0; row < dated.lstSchedule.ListCount(); ++row)
      rows += "[" + dated.lstSchedule.List(row) + "]";
    for (const TestPc::Message& each : std::exchange(pc.messages, {}))
      messages += each.title + ": " + each.prompt + ", style " + std::to_string(each.style);
    return {{"message", messages},
            {"txtDate", dated.txtDate.Text},
            {"txtTime", dated.txtTime.Text},
            {"focus", dated.focus == &dated.txtDate   ? "txtDate"
                      : dated.focus == &dated.txtTime ? "txtTime"
                                                      : ""},
            {"lstSchedule", rows},
            {"tasks", tasks()}};
  }
  // The failure that ends an operation is told behind its name.
  template <class Action>
  void step(std::string what, Action action) {
    const std::size_t end = story.text.size() + 2 + what.size();
    std::string failure;
    story.step(what, [&] {
      try {
        action();
      } catch (const RuntimeError& error) {
        failure = ", which fails: " + error.description();
      }
    });
    story.text.insert(end, failure);
  }
  void init() {
    step("InitSchedulerTab", [&] { dated.InitSchedulerTab(); });
  }
  void add(const char* date, const char* time) {
    step("cmdAdd", [&] {
      dated.txtDate.Text = date;
      dated.txtTime.Text = time;
      dated.cmdAdd_Click();
    });
  }
  void remove(int row) {
    step("cmdRemoveScheduled, row " + std::to_string(row), [&] {
      dated.lstSchedule.ListIndex(row);
      dated.cmdRemoveScheduled_Click();
    });
  }
};

}  // namespace

TEST_CASE("what the scheduler's tab shows and keeps, step by step") {
  Story story;
  {
    Tab tab(story, "The task is made once, and gets its parameters when it is found again");
    tab.init();
    tab.init();
    tab.step("cmdAdd", [&] { tab.dated.cmdAdd_Click(); });
  }
  for (const SystemTime& now :
       {SystemTime{2000, 2, 1, 28, 0, 0, 0, 0}, SystemTime{2001, 2, 3, 28, 13, 5, 0, 0},
        SystemTime{1999, 12, 5, 31, 23, 59, 59, 0}}) {
    Tab tab(story, "It starts with tomorrow at this time, and the entries that there are",
            "task = ZUB\ntrigger = 0 2030-02-28 10:00\n");
    tab.pc.now = now;
    tab.init();
    tab.step("cmdAdd", [&] { tab.dated.cmdAdd_Click(); });  // the boxes read back what they show
  }
  {
    Tab tab(story, "The program has moved: its new place lasts from the next save on. Others' tasks stay",
            "task = Defragment\n\ntask = zub\n\ntask = ZUB\napplication = D:\\Old\\zub\ncomment = Zubrane\n");
    tab.init();
    tab.add("9/15/2001", "10:20:30 AM");
    tab.add("2/29/2004", "12:00 AM");
    tab.add("1/1/1990", "23:59");
    tab.remove(1);
    tab.remove(-1);
    tab.remove(1);
    tab.remove(0);
  }
  {
    Tab tab(story, "What cannot be read is told, gets the focus and changes nothing");
    for (const auto& [date, time] : {std::pair{"", "10:00"},
                                     {"9/15/2001", ""},
                                     {"2/29/2001", "10:00"},
                                     {"9/15/2001", "25:00"},
                                     {"someday", "noon"},
                                     {"9/15/2001", "10:60"}}) {
      tab.add(date, time);
    }
  }
  for (const char* text : {"task = ZUB\n", "damaged\n"}) {
    Tab tab(story, "A PC without dialogs; the entries have gone meanwhile, or the text is damaged");
    tab.add("9/15/2001", "1:00");
    tab.tasks(text);
    tab.step("cmdAdvancedScheduler", [&] { tab.dated.cmdAdvancedScheduler_Click(); });
    tab.remove(0);
    tab.add("9/16/2001", "1:00");
    tab.init();
  }
  checkGolden("dated.txt", story.text);
}
