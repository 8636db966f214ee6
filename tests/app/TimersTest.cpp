#include <doctest/doctest.h>

#include "app/ProgramPc.h"

using namespace zub;

namespace {

struct TimedPc : ProgramPc {
  std::unique_ptr<Timers> timers;

  explicit TimedPc(bool closes = false) {
    setting("chkCloseAfterWash", closes ? "1" : "0");
    tempFiles();
    start();
    timers = std::make_unique<Timers>(*program);
  }
  // Whether the main window's timer ticked at this time: the clock's colon tells.
  bool clockTicksAt(std::uint64_t now) {
    const bool colon = main().automatic.display.colon;
    timers->serve(now);
    return main().automatic.display.colon != colon;
  }
};

}  // namespace

TEST_CASE("a timer ticks once in each interval, and once after any number of missed ones") {
  TimedPc pc;
  struct {
    std::uint64_t now;
    bool ticks;
  } const rows[] = {{70000, false}, {70999, false}, {71000, true},  {71000, false},
                    {71999, false}, {72300, true},  {73299, false}, {73300, true},
                    {99000, true},  {99001, false}, {99999, false}, {100000, true}};
  for (const auto& row : rows) {
    CAPTURE(row.now);
    CHECK(pc.clockTicksAt(row.now) == row.ticks);
  }
  CHECK_FALSE(pc.progress().loaded());  // which has timers of its own, and is not loaded for them
}

TEST_CASE("a timer whose ticks take longer than its interval leaves the others their turns") {
  TimedPc pc;
  pc.progress()->StartAnimation();
  int ticks = 0;
  for (const std::uint64_t now : {0, 1500, 3000, 4500, 6000}) ticks += pc.clockTicksAt(now) ? 1 : 0;
  CHECK(ticks == 2);
  CHECK(pc.progress()->state.AnimationFrame == 2);
}

TEST_CASE("a timer that is enabled again begins a whole interval") {
  TimedPc pc;
  Timer& timer = pc.main().automatic.timer;
  pc.clockTicksAt(0);
  timer.Enabled = false;
  CHECK_FALSE(pc.clockTicksAt(1500));
  timer.Enabled = true;
  CHECK_FALSE(pc.clockTicksAt(1600));
  CHECK_FALSE(pc.clockTicksAt(2599));
  CHECK(pc.clockTicksAt(2600));
}

TEST_CASE("the animation moves in the turns of a wash, ten pictures a second at most, and stops with it") {
  TimedPc pc;
  std::string frames;
  pc.pc.onDoEvents = [&](int) {
    pc.timers->serve(pc.pc.ticks += 50);
    frames += std::to_string(pc.progress()->state.AnimationFrame);
  };
  pc.main().cmdRemove_Click();
  CHECK(frames == "001122");
  CHECK(pc.progress()->state.ImgAnimate.picture == Picture::Frame0);
  pc.timers->serve(pc.pc.ticks + 60000);
  CHECK(pc.progress()->state.AnimationFrame == 2);
  CHECK(pc.progress()->state.form.Visible);  // no timer closes it
}

// The tick of one timer runs the whole wash, so that the time of its turn is long past when it returns.
TEST_CASE("a wash that the interval started and that took long still leaves six seconds to read its result") {
  TimedPc pc(true);
  pc.options().chkRunAuto.Value(1);
  pc.timers->serve(0);
  pc.pc.now.wHour = 11;
  pc.pc.ticks = 1000;
  pc.pc.onDoEvents = [&](int) { pc.timers->serve(pc.pc.ticks += 10000); };
  CHECK_FALSE(ProgramPc::ends([&] { pc.timers->serve(pc.pc.ticks); }));
  REQUIRE(pc.washes == 1);
  REQUIRE(pc.pc.ticks > 10000);
  CHECK_FALSE(ProgramPc::ends([&] { pc.timers->serve(pc.pc.ticks + 10); }));
  CHECK_FALSE(ProgramPc::ends([&] { pc.timers->serve(pc.pc.ticks + 5999); }));
  CHECK(pc.progress().loaded());
  CHECK(ProgramPc::ends([&] { pc.timers->serve(pc.pc.ticks + 6010); }));
}
