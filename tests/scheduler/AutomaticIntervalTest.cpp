#include <doctest/doctest.h>

#include "scheduler/AutomaticInterval.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

struct Watch {
  TestPc pc;
  Options options;
  AutomaticInterval automatic{*pc.platform().clock, options};
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
  // Whether the tick at this time washes; the wash ends at once.
  bool washesAt(int hour, int minute, int second = 0) {
    const int before = washes;
    at(hour, minute, second);
    automatic.Timer_Tick();
    automatic.timer.Enabled = true;
    return washes > before;
  }
  std::pair<int, int> next() { return {automatic.NextRemoval.wHour, automatic.NextRemoval.wMinute}; }
};

}  // namespace

TEST_CASE("the next time of every text that the box may hold, some of which never comes") {
  const struct {
    const char* text;
    int hour, minute;
    std::pair<int, int> next;
  } rows[] = {{"  Every Hour ", 10, 20, {11, 20}},      {"every hour", 10, 20, {10, 20}},
              {"Every 20 Minutes", 10, 20, {10, 20}},   {"", 23, 59, {23, 59}},
              {"*Every 15 Minutes*", 10, 44, {10, 59}}, {"Every 15 Minutes", 10, 45, {10, 60}},
              {"Every Half-Hour", 23, 31, {24, 1}},     {"Every Hour, Every 15 Minutes", 23, 50, {25, 5}}};
  Watch watch;
  for (const auto& row : rows) {
    CAPTURE(row.text);
    watch.at(row.hour, row.minute);
    watch.options.ComboInterval.type(row.text);
    CHECK(watch.next() == row.next);
  }
}

TEST_CASE("whole days, second by second: washes until a time that never comes") {
  struct {
    int row, step;
    int start, last;  // minutes of the day: of the choice, and of the last wash; the day after is silent
  } const rows[] = {{2, 15, 10 * 60 + 50, 23 * 60 + 50}, {2, 15, 10 * 60 + 45, 0},
                    {1, 30, 10 * 60 + 10, 23 * 60 + 40}, {1, 30, 10 * 60 + 30, 0},
                    {0, 60, 10 * 60 + 20, 23 * 60 + 20}, {0, 60, 23 * 60 + 59, 0}};
  for (const auto& row : rows) {
    CAPTURE(row.start);
    Watch watch;
    watch.options.ComboInterval.ListIndex(row.row);
    watch.at(row.start / 60, row.start % 60);
    watch.options.chkRunAuto.Value(1);
    std::vector<int> washed, expected;
    for (int due = row.start + row.step; due <= row.last; due += row.step) expected.push_back(due);
    for (int second = row.start * 60 + 1; second < 2 * 86400; ++second) {
      const int minute = second / 60;
      if (watch.washesAt(minute / 60 % 24, minute % 60, second % 60)) washed.push_back(minute);
    }
    CHECK(washed == expected);
    // Touching the option wakes it again.
    watch.at(9, 1);
    watch.options.chkRunAuto.Value(1);
    CHECK(watch.washesAt(watch.next().first, watch.next().second));
  }
}

TEST_CASE("a due minute is seen by its ticks alone, on each day") {
  Watch watch;
  watch.at(10, 20);
  watch.options.chkRunAuto.Value(1);
  CHECK_FALSE(watch.washesAt(11, 19, 59));
  CHECK_FALSE(watch.washesAt(11, 21));  // asleep through the whole minute, and not caught up
  CHECK_FALSE(watch.washesAt(12, 20));
  CHECK(watch.washesAt(11, 20, 59));

  watch.at(10, 20, 9);
  watch.options.ComboInterval.type("now");  // no row: due at once, and again within the minute
  CHECK(watch.washesAt(10, 20, 10));
  CHECK(watch.washesAt(10, 20, 59));
  CHECK_FALSE(watch.washesAt(10, 21));
  CHECK(watch.washesAt(10, 20));
}

TEST_CASE("the clock shows the time, or the next wash, and blinks at every tick") {
  Watch watch;
  CHECK(watch.automatic.timer.Enabled);
  CHECK(watch.automatic.timer.Interval == 1000);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Next auto track removal at:");
  watch.washesAt(9, 5);
  CHECK(watch.automatic.display.text == "09:05");
  CHECK(watch.automatic.display.colon);
  watch.options.chkRunAuto.Value(0);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Current time:");
  CHECK(watch.next() == std::pair{0, 0});
  CHECK_FALSE(watch.washesAt(0, 0));

  watch.options.ComboInterval.ListIndex(2);
  watch.at(9, 45);
  watch.options.chkRunAuto.Value(1);
  CHECK(watch.automatic.lblTimerRemove.Caption == "Next auto track removal at:");
  watch.washesAt(9, 45);
  CHECK(watch.automatic.display.text == "09:60");
  CHECK(watch.automatic.display.colon);

  // The tick of a due minute shows it, then plans the next and stands still for its wash.
  watch.at(10, 0);
  watch.options.ComboInterval.ListIndex(2);
  watch.at(10, 15, 59);
  watch.automatic.Timer_Tick();
  CHECK(watch.washes == 1);
  CHECK(watch.automatic.display.text == "10:15");
  CHECK(watch.next() == std::pair{10, 30});
  CHECK_FALSE(watch.automatic.timer.Enabled);
}
