#include <doctest/doctest.h>

#include <algorithm>

#include "app/ToldPc.h"
#include "support/Golden.h"

using namespace zub;

TEST_CASE("every trigger runs the one wash, and its end gives back the window as it was") {
  Story story;
  const std::pair<const char*, void (*)(ToldPc&)> triggers[] = {
      {"The button", [](ToldPc& pc) { pc.press("cmdRemove", &frmMain::cmdRemove_Click); }},
      {"The tray menu", [](ToldPc& pc) { pc.step("mnuRemove", [&] { pc.icon().mnuRemove_Click(); }); }},
      {"The interval", [](ToldPc& pc) { pc.comeDue(); }},
      {"The end of the session", [](ToldPc& pc) {
         pc.options().chkRunShutDown.Value(1);
         pc.step("the session ends", [&] { pc.main().QueryUnload(UnloadMode::WindowsEnds); });
       }}};
  const auto wash = [&](ToldPc& pc) {
    // The menu bars itself, also where its entry did not.
    return [&pc] { pc.step("in the wash, mnuRemove", [&] { pc.icon().mnuRemove_Click(); }); };
  };
  for (const auto& [name, pull] : triggers) {
    for (const bool visible : {true, false}) {
      ToldPc pc(story, "");
      pc.begin("", wash(pc));
      if (name == std::string("The interval")) pc.runAuto();
      if (!visible) pc.icon().mnuShow_Click();
      story.settle();
      story.chapter(std::string(name) + (visible ? ", the window visible" : ", the window hidden"));
      pull(pc);
      pc.finish();
    }
  }
  for (const char* commandLine : {"", "/STARTUP", "/SCHEDULER", "/SCHEDULER /STARTUP", "-x/STARTUPS",
                                  "/startup /Scheduler", "STARTUP SCHEDULER"}) {
    for (const char* chkRunStarted : {"1", "0"}) {
      if (*chkRunStarted == '0' && commandLine != std::string("/STARTUP")) continue;
      ToldPc pc(story, "");
      pc.setting("chkRunStarted", chkRunStarted);
      pc.plugin("Shop", "C:\\Shop.dat\r\n");
      pc.setting("ZUBPlugin Shop", "1");
      pc.setting("ZUBStandardPlugin Gold Wave Editor", "1");
      pc.pc.file("C:\\Shop.dat");
      pc.pc.file("C:\\WINDOWS\\goldwave.ini");
      story.chapter("Started with \"" + std::string(commandLine) + "\", chkRunStarted " + chkRunStarted);
      pc.step("the start", [&] { pc.start(commandLine, wash(pc)); });
      // A wash inside the start comes before the list of standard plugins, and a later one runs them.
      CHECK(pc.pc.hasFile("C:\\Shop.dat") == (pc.washes == 0));
      CHECK(pc.pc.hasFile("C:\\WINDOWS\\goldwave.ini"));
      if (pc.washes != 1) continue;
      pc.finish();
      pc.press("cmdRemove", &frmMain::cmdRemove_Click);
      CHECK_FALSE(pc.pc.hasFile("C:\\WINDOWS\\goldwave.ini"));
    }
  }
  checkGolden("triggers.txt", story.text);
}

TEST_CASE("what comes in the turns of a wash, step by step") {
  Story story;
  const auto begin = [](ToldPc& pc, const char* chkCloseAfterWash = "0") {
    pc.tempFiles();
    pc.setting("chkCloseAfterWash", chkCloseAfterWash);
    pc.setting("lblLastRemoval", "before");
    for (const char* name : {"chkRunHistory", "chkWMP"}) pc.setting(name, "1");
    pc.begin();
  };
  const auto inTurn = [](ToldPc& pc, int due, std::string_view what, const Handler& act) {
    pc.pc.onDoEvents = [&pc, due, what, act](int turn) {
      if (turn == due) pc.story.step(what, act);
    };
  };
  {
    ToldPc pc(story, "Cancel in the midst closes the display, and the wash goes on unseen to its end");
    begin(pc);
    inTurn(pc, 5, "cmdFinish in turn 5", [&] { pc.progress()->cmdFinish_Click(); });
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
    pc.press("cmdRemove again, which begins anew", &frmMain::cmdRemove_Click);
  }
  const std::pair<const char*, void (*)(ToldPc&)> ends[] = {
      {"Exit in the tray", [](ToldPc& pc) { pc.icon().mnuExit_Click(); }},
      {"Cancel of a wash that is to close the program", [](ToldPc& pc) { pc.progress()->cmdFinish_Click(); }},
      {"the session ends", [](ToldPc& pc) { pc.main().Unload(); }}};
  for (const auto& [how, end] : ends) {
    ToldPc pc(story, "The process ends in a turn, with its settings saved: " + std::string(how));
    begin(pc, how == ends[1].first ? "1" : "0");
    pc.options().chkSkipMessages.Value(1);  // not yet saved
    inTurn(pc, 5, how, [&] { end(pc); });
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
  }
  for (const bool byTimer : {true, false}) {
    ToldPc pc(story, "A wash that is to close the program does so after six seconds, or at Finish");
    begin(pc, "1");
    pc.pc.ticks = 5000000000;  // more than 32 bits: a PC that has run for months
    pc.timers->serve(pc.pc.ticks);
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
    pc.serve(pc.pc.ticks);
    pc.serve(pc.pc.ticks + 5999);
    if (byTimer) pc.serve(pc.pc.ticks + 6000);
    if (!byTimer) pc.finish();
  }
  for (const auto& [mode, chkRunShutDown] : {std::pair{UnloadMode::WindowsEnds, 1},
                                             {UnloadMode::WindowsEnds, 0},
                                             {UnloadMode::ControlMenu, 1},
                                             {UnloadMode::Code, 1}}) {
    ToldPc pc(story, "The program is to end, why: " + std::to_string(static_cast<int>(mode)) +
                         ", chkRunShutDown " + std::to_string(chkRunShutDown));
    begin(pc, "1");
    pc.options().chkRunShutDown.Value(chkRunShutDown);
    pc.pc.onDoEvents = [&](int) { pc.timers->serve(pc.pc.ticks += 4000); };
    pc.step("QueryUnload", [&] { pc.main().QueryUnload(mode); });
    pc.step("Unload", [&] { pc.main().Unload(); });
  }
  {
    ToldPc pc(story,
              "An interval that comes due in a turn of the user's wash starts a further wash inside it");
    begin(pc);
    pc.runAuto();
    inTurn(pc, 4, "turn 4", [&] { pc.comeDue(); });
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
    pc.finish();
  }
  {
    ToldPc pc(story, "A wash that the interval starts counts the next one from its beginning");
    begin(pc, "1");
    pc.runAuto();
    // The tick of one timer runs the whole wash, so that the time of its turn is long past when it returns.
    pc.pc.onDoEvents = [&](int) { pc.timers->serve(pc.pc.ticks += 10000); };
    pc.comeDue();
    for (const std::uint64_t later : {10U, 5999U, 6010U}) pc.serve(pc.pc.ticks + later);
  }
  checkGolden("turns.txt", story.text);
}

TEST_CASE("a second instance saves what it read and ends, whatever it was started for") {
  ProgramPc pc;
  pc.plugin("Shop", "No entries.\r\n");
  for (const char* kept : {"chkBleach", "ZUBPlugin Shop", "ZUBStandardPlugin Gold Wave Editor"})
    pc.setting(kept, "1");
  pc.setting("lblLastRemoval", "some time ago");
  pc.start();
  ProgramPc::ends([&] { pc.main().Unload(); });
  pc.pc.tray.clear();
  pc.setting("ZUBPath", "D:\\Elsewhere");
  pc.pc.otherInstance = true;
  const std::string before = pc.pc.snapshot();
  CHECK(pc.start("/SCHEDULER"));
  CHECK(pc.washes == 0);
  CHECK_FALSE(pc.main().form.Visible);
  CHECK(pc.pc.tray == std::vector<std::string>{"remove"});
  // Every other value is stored as it was read.
  CHECK(pc.stored("ZUBPath") == "C:\\Program Files\\Zubrane");
  CHECK(std::ranges::count(pc.pc.diffSince(before), '\n') == 2);
}
