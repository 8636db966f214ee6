#include <doctest/doctest.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

#include "app/console/Scheduler.h"
#include "app/console/Store.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/NewPc.h"
#include "support/TempFolder.h"

using namespace zub;

namespace {

struct MovedClock : FolderClock {
  SystemTime now{2001, 9, 5, 14, 10, 20, 30, 0};
  SystemTime local() override { return now; }
};

// A PC in a folder by a clock of its own. A file in its temporary folder tells whether it was washed.
struct TimedPc : ConsolePc {
  static constexpr const char* Trace = "C:\\WINDOWS\\TEMP\\old.tmp";

  TempFolder folder_;
  std::string path = folder_.path() + "/pc";
  ConsoleLoop loop{"zub", [](std::string_view text) { return std::string(text); }};
  std::unique_ptr<ConsolePc> pc;
  MovedClock clock;
  std::int64_t summerTime = 0;  // seconds that the clock was put on by
  Platform timed{};
  std::unique_ptr<CommandContext> context;
  std::unique_ptr<Scheduler> scheduler;

  explicit TimedPc(const std::function<void(Options&)>& choose = {}) {
    createPc(path);
    pc = openFolderPc(path, loop, loop, "");
    Store store(pc->platform());
    store.options.LstIcons.Check(iconRow::TempFolder, 1);
    if (choose) choose(store.options);
    store.save();
    pc->save();
    timed = pc->platform();
    timed.clock = &clock;
    context = std::make_unique<CommandContext>(CommandContext{*this, loop, {}});
    scheduler = std::make_unique<Scheduler>(*context, secondsOf(clock.now));
  }
  Platform& platform() override { return timed; }
  void save() override {}
  bool saveChanges(bool, std::string_view) override { return false; }
  std::vector<std::string> failures() const override { return {}; }
  std::vector<std::string> oddities() override { return {}; }
  void needWashable() override {}
  void needWritable() override {}
  std::string folder() const override { return path; }
  std::string user() const override { return {}; }
  std::string utf8(std::string_view text) const override { return std::string(text); }
  std::string fromTerminal(std::string_view text) const override { return std::string(text); }

  void tasks(const char* text) { writeHostFile(*openHostDir(path), "tasks.txt", text); }
  bool washesAt(std::uint16_t hour, std::uint16_t minute, std::uint16_t second) {
    Files& files = *pc->platform().files;
    files.open(Trace, OpenMode::Binary);
    clock.now.wHour = hour;
    clock.now.wMinute = minute;
    clock.now.wSecond = second;
    scheduler->step(secondsOf(clock.now) - summerTime);
    return !files.fileExists(Trace);
  }
};

// What is said on a stream while some work is done.
std::string heardOn(FILE* stream, const std::function<void()>& work) {
  std::fflush(stream);
  const int before = ::dup(::fileno(stream));
  FILE* const file = std::tmpfile();
  ::dup2(::fileno(file), ::fileno(stream));
  work();
  std::fflush(stream);
  ::dup2(before, ::fileno(stream));
  ::close(before);
  std::string said(1000, ' ');
  std::rewind(file);
  said.resize(std::fread(said.data(), 1, said.size(), file));
  std::fclose(file);
  return said;
}

}  // namespace

TEST_CASE("the scheduler starts a dated wash once, when its time has come") {
  TimedPc pc;
  pc.tasks(
      "task = Other\nparameters =  /SCHEDULER\ntrigger = 0 2001-09-14 10:22\n\n"
      "task = ZUB\nparameters =  /SCHEDULER\ntrigger = 0 2001-09-14 10:20\ntrigger = 0 2001-09-14 10:25\n");
  CHECK_FALSE(pc.washesAt(10, 20, 31));  // the first one is over
  CHECK_FALSE(pc.washesAt(10, 22, 0));   // another program's
  CHECK_FALSE(pc.washesAt(10, 24, 59));
  pc.tasks("damaged\n");  // what was read before stays in force
  CHECK(pc.washesAt(10, 25, 0));
  CHECK_FALSE(pc.washesAt(10, 25, 1));
}

TEST_CASE("a dated wash that meets another program waits its turn") {
  TimedPc pc;
  pc.tasks("task = ZUB\nparameters =  /SCHEDULER\ntrigger = 0 2001-09-14 10:25\n");
  {
    const auto other = openFolderPc(pc.path, pc.loop, pc.loop, "");
    REQUIRE_FALSE(other->platform().process->otherInstanceRuns());
    CHECK_FALSE(pc.washesAt(10, 25, 0));
    CHECK_FALSE(pc.washesAt(10, 25, 1));
  }
  CHECK(pc.washesAt(10, 25, 2));
  CHECK_FALSE(pc.washesAt(10, 25, 3));
}

TEST_CASE("the scheduler keeps the automatic interval, and follows a change of it within a minute") {
  TimedPc pc([](Options& options) {
    options.chkRunAuto.Value(1);
    options.ComboInterval.ListIndex(2);  // every 15 minutes
  });
  CHECK_FALSE(pc.washesAt(10, 20, 31));
  CHECK_FALSE(pc.washesAt(10, 34, 59));
  CHECK(pc.washesAt(10, 35, 0));
  CHECK_FALSE(pc.washesAt(10, 35, 1));
  CHECK(pc.washesAt(10, 50, 59));
  {
    const auto other = openFolderPc(pc.path, pc.loop, pc.loop, "");
    Store store(other->platform());
    store.options.chkRunAuto.Value(0);
    store.save();
    other->save();
  }
  CHECK_FALSE(pc.washesAt(11, 5, 0));
}

TEST_CASE(
    "what falls into the hour that the clock leaves out as summer time begins comes at the next moment") {
  const std::string dated = "task = ZUB\nparameters =  /SCHEDULER\ntrigger = 0 2001-09-14 ";
  const struct {
    const char* what;
    std::string tasks;
    int automatic, interval;  // its row
    int begin;                // minutes past ten, when the interval begins
    bool washes;
  } rows[] = {
      {"a dated wash", dated + "10:55\n", 0, 2, 20, true},
      {"a dated wash behind it", dated + "11:51\n", 0, 2, 20, false},
      {"a quarter of an hour", "", 1, 2, 36, true},
      {"an hour", "", 1, 0, 20, true},
      {"an interval to no time of any clock", "", 1, 2, 45, false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.what);
    TimedPc pc([&](Options& options) {
      options.chkRunAuto.Value(row.automatic);
      options.ComboInterval.ListIndex(row.interval);
    });
    pc.tasks(row.tasks.c_str());
    for (int minute = row.begin; minute <= 50; ++minute) {
      CHECK_FALSE(pc.washesAt(10, static_cast<std::uint16_t>(minute), 31));
    }
    pc.summerTime = 3600;
    CHECK(pc.washesAt(11, 50, 33) == row.washes);
    CHECK_FALSE(pc.washesAt(11, 50, 34));
  }
}

TEST_CASE("the scheduler says what comes next, and tells a damaged text once") {
  TimedPc pc([](Options& options) { options.chkRunAuto.Value(1); });
  const std::string tasks = "task = ZUB\nparameters =  /SCHEDULER\ntrigger = 0 2001-09-14 10:25\n";
  const struct {
    std::uint16_t second;
    std::string tasks, said, told;
  } rows[] = {
      {31, tasks, "Next dated wash: 9/14/2001 10:25:00 AM\nNext wash by the interval: 11:20\n", ""},
      {32, tasks + "trigger = 0 2001-02-31 10:00\n", "", "zub: tasks.txt: line 4: a trigger is told as"},
      {33, tasks + "trigger = 0 2001-02-31 10:00\n", "", ""},
      {34, "colour = blue\n", "", "zub: tasks.txt: line 1: stands before the first task"},
      {35, tasks, "", ""},
      {36, "", "Next dated wash: none\nNext wash by the interval: 11:20\n", ""},
  };
  for (const auto& row : rows) {
    pc.tasks(row.tasks.c_str());
    CAPTURE(row.second);
    std::string told;
    CHECK(heardOn(stdout, [&] { told = heardOn(stderr, [&] { pc.washesAt(10, 20, row.second); }); }) ==
          row.said);
    CHECK(told.substr(0, row.told.size()) == row.told);
    CHECK(told.empty() == row.told.empty());
  }
  TimedPc late([](Options& options) {
    options.chkRunAuto.Value(1);
    options.ComboInterval.ListIndex(2);
  });
  CHECK(heardOn(stdout, [&] { late.washesAt(10, 45, 0); }) ==
        "Next dated wash: none\nNext wash by the interval: 10:60, which no clock shows: switch chkRunAuto "
        "off for a "
        "minute\n");
}
