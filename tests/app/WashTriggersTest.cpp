#include <doctest/doctest.h>

#include <algorithm>

#include "app/ProgramPc.h"

using namespace zub;

namespace {

void comeDue(ProgramPc& pc) {
  pc.options().ComboInterval.ListIndex(2);
  pc.options().chkRunAuto.Value(1);
  Timers timers(*pc.program);
  timers.serve(0);
  pc.pc.now.wMinute = 35;
  timers.serve(1000);
}

void endSession(ProgramPc& pc) {
  pc.options().chkRunShutDown.Value(1);
  pc.main().QueryUnload(UnloadMode::WindowsEnds);
}

}  // namespace

TEST_CASE("every trigger runs the one wash, and its end gives back the window as it was") {
  struct {
    std::string name;
    const char* commandLine;  // of a wash at the start
    void (*pull)(ProgramPc&);
  } const triggers[] = {
      {"the button", nullptr, [](ProgramPc& pc) { pc.main().cmdRemove_Click(); }},
      {"the tray menu", nullptr, [](ProgramPc& pc) { pc.icon().mnuRemove_Click(); }},
      {"the interval", nullptr, comeDue},
      {"the end of the session", nullptr, endSession},
      {"the start with Windows", "/STARTUP", nullptr},
      {"the task scheduler", "/SCHEDULER", nullptr},
  };
  for (const auto& trigger : triggers) {
    for (const bool visible : {true, false}) {
      const bool atStart = trigger.commandLine != nullptr;
      if (atStart && visible) continue;
      CAPTURE(trigger.name);
      CAPTURE(visible);
      ProgramPc pc;
      pc.setting("chkRunStarted", "1");
      const Handler inWash = [&] {
        CHECK(pc.main().WasVisible == visible);
        CHECK_FALSE(pc.main().form.Visible);
        CHECK(pc.main().form.Enabled == !visible);
        CHECK_FALSE(pc.icon().mnuRemove.Enabled);
        CHECK(pc.icon().SetTopForm() == 1);
        CHECK(pc.main().cmdViewLog.Visible);
        CHECK(pc.progress()->state.form.Visible);
        CHECK(pc.main().automatic.timer.Enabled == (trigger.pull != comeDue));
        pc.icon().mnuRemove_Click();  // bars itself, also where the menu did not
      };
      pc.start(atStart ? trigger.commandLine : "", inWash);
      if (!atStart) {
        CHECK(pc.washes == 0);
        if (!visible) pc.icon().mnuShow_Click();
        trigger.pull(pc);
      }
      CHECK(pc.washes == 1);
      CHECK(pc.icon().SetTopForm() == 1);  // until the progress window goes
      const unsigned shown = pc.main().form.shown;
      pc.progress()->cmdFinish_Click();
      CHECK(pc.main().form.Visible == visible);
      CHECK(pc.main().form.shown == shown + (visible ? 1 : 0));
      CHECK(pc.main().form.Enabled);
      CHECK(pc.icon().mnuRemove.Enabled);
      CHECK(pc.icon().SetTopForm() == 0);
      CHECK(pc.main().automatic.timer.Enabled);
      CHECK_FALSE(pc.progress().loaded());
    }
  }
}

TEST_CASE("Cancel in the midst closes the display, and the wash goes on unseen to its end") {
  ProgramPc pc;
  pc.tempFiles();
  for (const char* name : {"chkRunHistory", "chkWMP"}) pc.setting(name, "1");
  pc.start();
  int leftAtCancel = 0;
  pc.pc.onDoEvents = [&](int turn) {
    if (turn != 5) return;
    leftAtCancel = pc.tempFilesLeft();
    pc.progress()->cmdFinish_Click();
    CHECK_FALSE(pc.progress().loaded());
    CHECK(pc.main().form.Visible);
    CHECK(pc.main().form.Enabled);
    CHECK(pc.icon().mnuRemove.Enabled);
    CHECK(pc.icon().SetTopForm() == 0);
  };
  pc.main().cmdRemove_Click();
  CHECK(leftAtCancel > 0);
  CHECK(pc.tempFilesLeft() == 0);
  CHECK(pc.options().lblLastRemoval.Caption == WashedNow);
  REQUIRE(pc.progress().loaded());
  const frmAnimated::State& unseen = pc.progress().peek().state;
  CHECK_FALSE(unseen.form.Visible);
  CHECK(unseen.lblCompleted.Caption == "2");  // begun anew: the temp folder and the media player
  CHECK(unseen.Image5.picture == Picture::OpenMark);
  CHECK(unseen.Image12.picture == Picture::DoneMark);
  CHECK(pc.main().form.Visible);

  // The next wash does not go on where the unseen rest has ended.
  pc.pc.onDoEvents = {};
  pc.main().cmdRemove_Click();
  CHECK(unseen.form.Visible);
  CHECK(unseen.lblCompleted.Caption == "3");
}

TEST_CASE("a process that ends in a turn of a wash leaves the rest, with its settings saved") {
  struct {
    std::string how;
    const char* chkCloseAfterWash;
    void (*end)(ProgramPc&);
  } const rows[] = {
      {"Exit in the tray", "0", [](ProgramPc& pc) { pc.icon().mnuExit_Click(); }},
      {"Cancel of a wash that is to close the program", "1",
       [](ProgramPc& pc) { pc.progress()->cmdFinish_Click(); }},
      {"the session ends", "0", [](ProgramPc& pc) { pc.main().Unload(); }},
  };
  for (const auto& row : rows) {
    CAPTURE(row.how);
    ProgramPc pc;
    pc.tempFiles();
    pc.setting("chkCloseAfterWash", row.chkCloseAfterWash);
    pc.setting("lblLastRemoval", "before");
    pc.start();
    pc.options().chkSkipMessages.Value(1);  // not yet saved
    pc.pc.onDoEvents = [&](int turn) {
      if (turn == 5) row.end(pc);
    };
    CHECK(ProgramPc::ends([&] { pc.main().cmdRemove_Click(); }));
    CHECK(pc.pc.turns == 5);
    CHECK(pc.tempFilesLeft() == 2);
    CHECK(pc.stored("chkSkipMessages") == "1");
    CHECK(pc.stored("lblLastRemoval") == "before");
    CHECK(pc.pc.tray.back() == "remove");
  }
}

TEST_CASE("a wash that is to close the program does so after six seconds, or at Finish") {
  for (const bool byTimer : {true, false}) {
    ProgramPc pc;
    pc.setting("chkCloseAfterWash", "1");
    pc.start();
    pc.pc.ticks = 5000000000;  // more than 32 bits: a PC that has run for months
    Timers timers(*pc.program);
    timers.serve(pc.pc.ticks);
    pc.main().cmdRemove_Click();
    CHECK(pc.progress()->state.lblCurrent.Caption == "Press finish to close this application");
    timers.serve(pc.pc.ticks);
    timers.serve(pc.pc.ticks + 5999);
    CHECK(pc.stored("lblLastRemoval") == "");
    CHECK(ProgramPc::ends([&] {
      if (byTimer) timers.serve(pc.pc.ticks + 6000);
      if (!byTimer) pc.progress()->cmdFinish_Click();
    }));
    CHECK(pc.washes == 1);
    CHECK(pc.stored("lblLastRemoval") == WashedNow);
    CHECK(pc.pc.tray.back() == "remove");
  }
}

TEST_CASE("only the end of the session washes before the program ends, and only where it is asked for") {
  struct {
    UnloadMode mode;
    int chkRunShutDown;
    int chkCloseAfterWash;
    int washes;
  } const rows[] = {{UnloadMode::WindowsEnds, 1, 0, 1},
                    {UnloadMode::WindowsEnds, 1, 1, 1},
                    {UnloadMode::WindowsEnds, 0, 0, 0},
                    {UnloadMode::ControlMenu, 1, 0, 0},
                    {UnloadMode::Code, 1, 1, 0}};
  for (const auto& row : rows) {
    ProgramPc pc;
    pc.tempFiles();
    pc.start();
    pc.options().chkRunShutDown.Value(row.chkRunShutDown);
    pc.options().chkCloseAfterWash.Value(row.chkCloseAfterWash);
    Timers timers(*pc.program);
    pc.pc.onDoEvents = [&](int) { timers.serve(pc.pc.ticks += 4000); };
    CHECK_FALSE(ProgramPc::ends([&] { pc.main().QueryUnload(row.mode); }));
    CHECK(pc.washes == row.washes);
    CHECK(ProgramPc::ends([&] { pc.main().Unload(); }));
    CHECK(pc.washes == row.washes);
    CHECK(pc.tempFilesLeft() == (row.washes == 1 ? 0 : 3));
    CHECK(pc.stored("lblLastRemoval") == (row.washes == 1 ? WashedNow : ""));
  }
}

TEST_CASE("an interval that comes due in a turn of the user's wash starts a further wash inside it") {
  ProgramPc pc;
  pc.tempFiles();
  pc.start();
  pc.options().ComboInterval.ListIndex(2);
  pc.options().chkRunAuto.Value(1);
  Timers timers(*pc.program);
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 4) pc.pc.now.wMinute = 35;
    timers.serve(pc.pc.ticks += 1000);
  };
  pc.main().cmdRemove_Click();
  CHECK(pc.washes == 2);
  CHECK(pc.tempFilesLeft() == 0);
  CHECK_FALSE(pc.main().automatic.timer.Enabled);
  pc.progress()->cmdFinish_Click();
  CHECK(pc.main().automatic.timer.Enabled);
  CHECK_FALSE(pc.main().form.Visible);  // the wash inside found it hidden
}

TEST_CASE(
    "a wash of the interval counts the next one from its beginning; a time that passes in it is lost for the "
    "day") {
  for (const int minutesInTurn : {1, 5}) {
    CAPTURE(minutesInTurn);
    ProgramPc pc;
    pc.tempFiles();
    pc.start();
    pc.options().ComboInterval.ListIndex(2);
    pc.options().chkRunAuto.Value(1);
    Timers timers(*pc.program);
    const auto tickAt = [&](int minute) {
      pc.pc.now = timeFromSeconds(secondsOf({2001, 9, 5, 14, 10, 0, 0, 0}) + minute * 60);
      timers.serve(pc.pc.ticks += 1000);
    };
    int minute = 35;
    pc.pc.onDoEvents = [&](int) { tickAt(minute += minutesInTurn); };
    tickAt(20);
    tickAt(34);
    CHECK(pc.washes == 0);
    tickAt(35);
    CHECK(pc.washes == 1);
    CHECK(pc.main().automatic.NextRemoval.wMinute == 50);
    const bool passed = minute > 50;
    CHECK(passed == (minutesInTurn == 5));
    pc.pc.onDoEvents = {};
    pc.progress()->cmdFinish_Click();
    tickAt(passed ? minute : 49);
    tickAt(passed ? minute + 1 : 50);
    CHECK(pc.washes == (passed ? 1 : 2));
    if (!passed) continue;
    tickAt(24 * 60 + 50);
    CHECK(pc.washes == 2);
  }
}
