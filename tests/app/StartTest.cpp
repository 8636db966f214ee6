#include <doctest/doctest.h>

#include <algorithm>

#include "app/ProgramPc.h"

using namespace zub;

namespace {

const std::string GoldWave = "C:\\WINDOWS\\goldwave.ini";

}  // namespace

TEST_CASE("which switches wash at the start, and whether the window shows") {
  struct {
    std::string commandLine;
    std::string chkRunStarted;
    int washes;
    bool visible;
  } const rows[] = {{"", "1", 0, true},
                    {"/STARTUP", "0", 0, false},
                    {"/STARTUP", "1", 1, false},
                    {"/SCHEDULER", "0", 1, false},
                    {"/STARTUP /SCHEDULER", "0", 1, false},
                    {"/SCHEDULER /STARTUP", "1", 2, false},
                    {"-x/STARTUPS", "1", 1, false},
                    {"/startup /Scheduler", "1", 0, true},
                    {"STARTUP SCHEDULER", "1", 0, true}};
  for (const auto& row : rows) {
    CAPTURE(row.commandLine);
    CAPTURE(row.chkRunStarted);
    ProgramPc pc;
    pc.setting("chkRunStarted", row.chkRunStarted);
    CHECK_FALSE(pc.start(row.commandLine));
    CHECK(pc.washes == row.washes);
    CHECK(pc.main().form.Visible == row.visible);
    CHECK(pc.main().form.shown == (row.visible ? 1 : 0));
    CHECK(pc.main().cmdViewLog.Visible == (row.washes > 0));
    CHECK(pc.progress().loaded() == (row.washes > 0));
    // Whatever washed, the rest of the start is done.
    CHECK(pc.options().standardlist.ListCount() == 84);
    CHECK(pc.main().lblHelp.Caption == "");
    CHECK_FALSE(pc.main().dated.txtDate.Text.empty());
    CHECK(pc.pc.platform().tasks->count() == 1);
    CHECK(pc.pc.tray == std::vector<std::string>{"add Zubrone"});
  }
}

TEST_CASE("a wash inside the start comes before the scheduler tab and the standard list") {
  for (const std::string commandLine : {"/STARTUP", "/SCHEDULER"}) {
    CAPTURE(commandLine);
    ProgramPc pc;
    pc.setting("chkRunStarted", "1");
    pc.setting("chkIECache", "1");
    pc.plugin("Shop", "C:\\Shop.dat\r\n");
    pc.setting("ZUBPlugin Shop", "1");
    pc.setting("ZUBStandardPlugin Gold Wave Editor", "1");
    pc.pc.file("C:\\Shop.dat");
    pc.pc.file(GoldWave);
    pc.start(commandLine, [&] {
      if (pc.washes > 1) return;
      CHECK(pc.pc.tray == std::vector<std::string>{"add Zubrone"});
      CHECK(pc.options().chkIECache.Value() == 1);
      CHECK_FALSE(pc.main().lblHelp.Caption.empty());
      CHECK(pc.options().lstFiles.SelCount() == 1);
      CHECK(pc.options().standardlist.ListCount() == 0);
      CHECK(pc.pc.platform().tasks->count() == 0);
      CHECK(pc.main().dated.txtDate.Text.empty());
      CHECK_FALSE(pc.main().form.Visible);
    });
    CHECK(pc.washes == 1);
    CHECK_FALSE(pc.pc.hasFile("C:\\Shop.dat"));
    CHECK(pc.pc.hasFile(GoldWave));
    CHECK_FALSE(contains(pc.program->engine.clean.txtResult, "Gold Wave"));
    CHECK(pc.options().lblLastRemoval.Caption == WashedNow);
    // The next wash of the same process finds the list filled, its tick restored.
    pc.progress()->cmdFinish_Click();
    pc.icon().mnuRemove_Click();
    CHECK_FALSE(pc.pc.hasFile(GoldWave));
  }
}

TEST_CASE("a second instance saves what it read and ends, whatever it was started for") {
  ProgramPc pc;
  pc.plugin("Shop", "No entries.\r\n");
  for (const char* kept : {"chkBleach", "ZUBPlugin Shop", "ZUBStandardPlugin Gold Wave Editor"}) {
    pc.setting(kept, "1");
  }
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
