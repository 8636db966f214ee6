#include <doctest/doctest.h>

#include "scheduler/AutomaticInterval.h"
#include "support/Golden.h"
#include "support/Story.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

struct Watch {
  TestPc pc;
  Options options;
  AutomaticInterval automatic{*pc.platform().clock, options};
  Story story;
  int washes = 0;

  Watch() {
    options.chkRunAuto.Click = [this] { automatic.chkRunAuto_Click(); };
    options.ComboInterval.Click = options.ComboInterval.Change = [this] { automatic.SetNextRemovalTime(); };
    automatic.startWash = [this] {
      CHECK_FALSE(automatic.timer.Enabled);
      ++washes;
    };
    story.look = [this]() -> Story::Things {
      const SystemTime& next = automatic.NextRemoval;
      return {
          {"lblTimerRemove", automatic.lblTimerRemove.Caption},
          {"clock", automatic.display.text},
          {"colon", automatic.display.colon ? "yes" : "no"},
          {"NextRemoval",
           std::to_string(next.wHour) + " hours, " + std::to_string(next.wMinute) + " minutes"},
          {"Timer", std::to_string(automatic.timer.Interval) + (automatic.timer.Enabled ? " on" : " off")},
          {"washes", std::to_string(washes)}};
    };
  }
  void at(int hour, int minute, int second = 0) {
    pc.now.wHour = static_cast<std::uint16_t>(hour);
    pc.now.wMinute = static_cast<std::uint16_t>(minute);
    pc.now.wSecond = static_cast<std::uint16_t>(second);
  }
  void tick(int hour, int minute, int second) {
    at(hour, minute, second);
    story.step(
        "a tick at " + std::to_string(hour) + ":" + std::to_string(minute) + ":" + std::to_string(second),
        [&] { automatic.Timer_Tick(); });
  }
  void interval(const char* text, int hour, int minute) {
    at(hour, minute);
    story.step(std::string("[") + text + "] chosen at " + std::to_string(hour) + ":" + std::to_string(minute),
               [&] { options.ComboInterval.type(text); });
  }
  void option(int value) {
    story.step("chkRunAuto " + std::to_string(value), [&] { options.chkRunAuto.Value(value); });
  }
  void finished() {
    story.step("the wash is finished", [&] { automatic.timer.Enabled = true; });
  }
};

}  // namespace

TEST_CASE("the clock and the next time, step by step") {
  Watch watch;
  watch.story.chapter("The option is off: the clock shows the time");
  watch.tick(0, 0, 0);
  watch.tick(9, 5, 1);
  watch.option(0);
  watch.story.chapter("The option is on: the clock shows the next time");
  watch.interval("Every 15 Minutes", 9, 45);
  watch.option(1);
  watch.tick(9, 45, 0);
  watch.story.chapter("The next time of every text that the box may hold; some of them never come");
  watch.interval("  Every Hour ", 10, 20);
  watch.interval("every hour", 10, 20);
  watch.interval("Every 20 Minutes", 10, 21);
  watch.interval("", 23, 59);
  watch.interval("*Every 15 Minutes*", 10, 44);
  watch.interval("Every Half-Hour", 23, 31);
  watch.interval("Every Hour, Every 15 Minutes", 23, 50);
  watch.at(9, 1);
  watch.option(1);
  watch.story.chapter("A due minute is seen by its ticks alone, on each day");
  watch.interval("Every Half-Hour", 10, 5);
  watch.tick(10, 34, 59);
  watch.tick(10, 36, 0);
  watch.tick(11, 35, 0);
  watch.tick(10, 35, 59);
  watch.finished();
  watch.story.chapter("No row: due at once, and again within the minute");
  watch.interval("now", 10, 20);
  for (const int second : {10, 59}) {
    watch.tick(10, 20, second);
    watch.finished();
  }
  watch.tick(10, 21, 0);
  watch.tick(10, 20, 0);
  checkGolden("interval.txt", watch.story.text);
}
