#include <doctest/doctest.h>

#include "scheduler/AutomaticInterval.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

struct Watch {
  TestPc pc;
  Options options;
  AutomaticInterval automatic{pc.platform().clock, options};
  int washes = 0;

  Watch() {
    options.chkRunAuto.Click = [this] { automatic.chkRunAuto_Click(); };
    options.ComboInterval.Click = options.ComboInterval.Change = [this] { automatic.SetNextRemovalTime(); };
    automatic.startWash = [this] {
      CHECK_FALSE(automatic.timer.Enabled);
      ++washes;
    };
  }
  void at(int hour, int minute, int second = 0) {
    pc.now.wHour = static_cast<std::uint16_t>(hour);
    pc.now.wMinute = static_cast<std::uint16_t>(minute);
    pc.now.wSecond = static_cast<std::uint16_t>(second);
  }
  std::pair<int, int> next() { return {automatic.NextRemoval.wHour, automatic.NextRemoval.wMinute}; }
  // The seconds pass one by one. A wash that the timer starts lasts some seconds without ticks. The minutes of
  // the day at which a wash began.
  std::vector<int> run(int seconds, int washSeconds) {
    std::vector<int> begun;
    int busy = 0;
    for (int second = 0; second < seconds; ++second) {
      pc.now = timeFromSeconds(secondsOf(pc.now) + 1);
      if (busy > 0 && --busy == 0) automatic.timer.Enabled = true;  // as the finished wash does
      if (!automatic.timer.Enabled) continue;
      const int before = washes;
      automatic.Timer_Tick();
      if (washes == before) continue;
      begun.push_back(pc.now.wHour * 60 + pc.now.wMinute);
      busy = washSeconds;
      if (busy == 0) automatic.timer.Enabled = true;
    }
    return begun;
  }
};

std::vector<int> every(int step, int first, int last) {
  std::vector<int> minutes;
  for (int minute = first; minute <= last; minute += step) minutes.push_back(minute);
  return minutes;
}

constexpr int Day = 86400;

}  // namespace

TEST_CASE("the next time of every row at every minute of a day") {
  struct {
    const char* row;
    int step;
  } const rows[] = {{"Every Hour", 60},
                    {"Every Half-Hour", 30},
                    {"Every 15 Minutes", 15},
                    {"  Every Hour ", 60},
                    {"every hour", 0},
                    {"Every 20 Minutes", 0},
                    {"", 0},
                    {"*Every 15 Minutes*", 15},
                    {"Every Hour, Every 15 Minutes", 75}};
  for (const auto& [row, step] : rows) {
    Watch watch;
    bool all = true;
    for (int time = 0; time < 24 * 60; ++time) {
      watch.at(time / 60, time % 60);
      watch.options.ComboInterval.type(row);
      // 10:45 and 15 minutes are 10:60, 23:50 and 15 minutes are 24:05: times that never come.
      const int due = time + step;
      const bool odd = step % 60 != 0 && time % 60 + step % 60 == 60;
      const std::pair<int, int> expected = odd ? std::pair{due / 60 - 1, 60} : std::pair{due / 60, due % 60};
      all = all && watch.next() == expected;
    }
    CAPTURE(row);
    CHECK(all);
  }
}

TEST_CASE("whole days, second by second: washes until a time that never comes") {
  struct {
    int hour, minute, row;
    std::vector<int> washes;  // on the first day; the days after are silent
  } const rows[] = {{10, 50, 2, every(15, 11 * 60 + 5, 23 * 60 + 50)},  {10, 45, 2, {}},
                    {10, 10, 1, every(30, 10 * 60 + 40, 23 * 60 + 40)}, {10, 30, 1, {}},
                    {10, 20, 0, every(60, 11 * 60 + 20, 23 * 60 + 20)}, {23, 59, 0, {}}};
  for (const auto& row : rows) {
    for (const int washSeconds : {0, 3, 90}) {
      CAPTURE(row.hour);
      CAPTURE(row.minute);
      CAPTURE(washSeconds);
      Watch watch;
      watch.options.ComboInterval.ListIndex(row.row);
      watch.at(row.hour, row.minute);
      watch.options.chkRunAuto.Value(1);
      CHECK(watch.run(3 * Day, washSeconds) == row.washes);
      // Touching the option wakes it again.
      watch.at(9, 1);
      watch.options.chkRunAuto.Value(1);
      CHECK(watch.run(3660, washSeconds).size() >= 1);
    }
  }
}

TEST_CASE("a text that is no row is due at once, and at that minute of each day") {
  for (const int washSeconds : {0, 20, 120}) {
    Watch watch;
    watch.options.ComboInterval.type("now");
    watch.at(10, 20, 9);
    watch.options.chkRunAuto.Value(1);
    const std::vector<int> washes = watch.run(2 * Day, washSeconds);
    // From 10:20:10 on, as often as a wash ends within the minute; the next day from 10:20:00, and in the last
    // ten seconds of the run from 10:20:00 once more.
    const std::size_t expected = washSeconds == 0 ? 50 + 60 + 10 : washSeconds == 20 ? 3 + 3 + 1 : 3;
    CHECK(washes == std::vector<int>(expected, 10 * 60 + 20));
  }
}

TEST_CASE("a due minute without a tick is lost, and the same time fires on the next day") {
  Watch watch;
  watch.options.ComboInterval.ListIndex(0);
  watch.at(10, 20);
  watch.options.chkRunAuto.Value(1);
  watch.at(11, 19, 58);
  CHECK(watch.run(1, 0).empty());
  watch.at(11, 21);  // asleep through the whole minute
  CHECK(watch.next() == std::pair{11, 20});
  const std::vector<int> washes = watch.run(Day, 0);
  REQUIRE_FALSE(washes.empty());
  CHECK(washes.front() == 11 * 60 + 20);
  CHECK(watch.pc.now.wDay == 15);
}

TEST_CASE("the clock shows the time, or the next wash, and blinks at every tick") {
  Watch watch;
  CHECK(watch.automatic.timer.Enabled);
  CHECK(watch.automatic.timer.Interval == 1000);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Next auto track removal at:");
  watch.at(9, 5);
  watch.automatic.Timer_Tick();
  CHECK(watch.automatic.display.text == "09:05");
  CHECK(watch.automatic.display.colon);
  watch.options.chkRunAuto.Value(0);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Current time:");
  CHECK(watch.next() == std::pair{0, 0});

  watch.options.ComboInterval.ListIndex(2);
  watch.at(9, 45);
  watch.options.chkRunAuto.Value(1);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Next auto track removal at:");
  watch.automatic.Timer_Tick();
  CHECK(watch.automatic.display.text == "09:60");
  CHECK_FALSE(watch.automatic.display.colon);
  CHECK(watch.washes == 0);
}

TEST_CASE("the tick of a due minute shows it, then plans the next and stands still for its wash") {
  Watch watch;
  watch.at(9, 0);
  watch.options.chkRunAuto.Value(1);
  watch.at(10, 0, 59);
  watch.automatic.Timer_Tick();
  CHECK(watch.washes == 1);
  CHECK(watch.automatic.display.text == "10:00");
  CHECK(watch.next() == std::pair{11, 0});
  CHECK_FALSE(watch.automatic.timer.Enabled);
}
