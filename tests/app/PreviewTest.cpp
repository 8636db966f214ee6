// The preview that the main window asks for.
#include <doctest/doctest.h>

#include "app/ProgramPc.h"
#include "cleaners/BrowserFiles.h"

using namespace zub;

namespace {

struct PreviewPc : ProgramPc {
  frmPreview& window() { return main().preview; }
  bool tells(std::string_view text) { return contains(window().txtResult, text); }
  // What the wash of the temp folder, ticked on the screen alone, would remove.
  void begin() {
    tempFiles();
    setting("chkTempFolder", "0");
    start();
    options().LstIcons.Check(iconRow::TempFolder, 1);
  }
};

}  // namespace

TEST_CASE("a preview goes by the ticks on the screen, and leaves the PC and the program as they are") {
  PreviewPc pc;
  pc.begin();
  const std::string before = pc.pc.snapshot();
  pc.main().cmdPreview_Click();
  CHECK(pc.pc.diffSince(before) == "");
  CHECK(pc.tells("PREVIEW: nothing has been removed."));
  CHECK(pc.tells("\tDeleting file a\r\n"));
  CHECK(pc.tells("\r\nWould go: 3 files of 3 bytes, 0 folders, 0 registry keys, 0 values\r\n"));
  CHECK(pc.tells("\r\nNothing to remove for: Search/Find History\r\n"));
  CHECK(pc.window().report.Visible);
  CHECK_FALSE(pc.window().form.Visible);
  CHECK(pc.main().form.Visible);
  CHECK(pc.main().form.Enabled);
  CHECK_FALSE(pc.main().cmdViewLog.Visible);
  CHECK(pc.options().lblLastRemoval.Caption == "");
  CHECK(pc.program->engine.clean.txtResult == "");
  CHECK_FALSE(pc.progress().loaded());
  CHECK(pc.washes == 0);

  pc.main().cmdRemove_Click();
  CHECK(pc.tempFilesLeft() == 0);
  CHECK_FALSE(pc.window().report.Visible);  // what it told is past
}

TEST_CASE(
    "a preview knows the traces that washes of this process have left in force, and leaves none itself") {
  const std::string key = "HKEY_CURRENT_USER\\Software\\Shop";
  for (const bool inForce : {false, true}) {
    CAPTURE(inForce);
    PreviewPc pc;
    pc.plugin("Shop", "No entries.\r\n");
    pc.pc.file("C:\\Program Files\\Zubrane\\Plugins\\Shop.zb2",
               "HKey_Current_User\\Software\\Shop+ Value`= Last\r\n");
    for (const char* name : {"Last", "First"}) pc.pc.value(key, name, "x");
    pc.start();
    pc.options().LstIcons.Check(iconRow::FindHistory, 0);
    pc.options().lstFiles.Selected(0, true);
    RegistryHelper& traces = pc.program->engine.registryHelper;
    if (inForce) traces.DeleteTrace("HKEY_CURRENT_USER\\Software\\Gone- Key*");
    pc.main().cmdPreview_Click();
    CHECK(pc.tells(inForce ? "1 registry key, 2 values" : "0 registry keys, 1 value"));
    CHECK(traces.KeyMode == inForce);
    CHECK_FALSE(traces.ValueMode);
  }
}

TEST_CASE("a preview looks at the profiles that the program has found, as its wash does") {
  PreviewPc pc;
  const std::string profiles = "C:\\W\\Mozilla\\Registry.dat", profile = "C:\\W\\Mozilla\\ann.slt";
  pc.pc.shellFolder("AppData", "C:\\W");
  pc.pc.file(profiles, profileRegistry({profile}));
  for (const char* file : {"\\Cookies.txt", "\\history.dat"}) pc.pc.file(profile + file);
  pc.start();
  pc.main().cmdNSKeep_Click();
  pc.pc.file(profiles, profileRegistry({}));
  pc.options().LstIcons.Check(iconRow::Netscape, 1);
  pc.options().chkNSHistory.Value(1);
  const std::string before = pc.pc.snapshot();
  pc.main().cmdPreview_Click();
  CHECK(pc.pc.diffSince(before) == "");  // choosing a profile saves the keep list of the one before
  CHECK(pc.tells("Would go: 1 file of 1 byte,"));
}

TEST_CASE("Stop ends a preview in its turn, without a report; until then its animation moves") {
  PreviewPc pc;
  pc.begin();
  Timers timers(*pc.program);
  pc.pc.onDoEvents = [&](int turn) {
    timers.serve(pc.pc.ticks += 100);
    if (turn == 1) {
      CHECK(pc.window().form.Visible);
      CHECK_FALSE(pc.main().form.Enabled);
      pc.main().cmdPreview_Click();  // a second one does not begin
      CHECK(pc.pc.turns == 1);
    }
    if (turn == 4) pc.window().cmdStop_Click();
  };
  pc.main().cmdPreview_Click();
  CHECK(pc.pc.turns == 4);
  CHECK_FALSE(pc.window().form.Visible);
  CHECK_FALSE(pc.window().report.Visible);
  CHECK(pc.main().form.Enabled);
  CHECK(pc.window().ImgAnimate.picture == Picture::Frame3);
  CHECK_FALSE(pc.window().Timer.Enabled);
}

TEST_CASE("a message that a wash would show is a line of the preview, and so is what would stay") {
  PreviewPc pc;
  pc.begin();
  pc.options().chkSkipMessages.Value(1);
  pc.pc.lock(ProgramPc::Temp + "b");
  pc.main().cmdPreview_Click();
  CHECK(pc.pc.messages.empty());
  const std::string file = ProgramPc::Temp + "b";
  CHECK(pc.tells("\tA message would say: Permission denied: The file " + file + " is locked"));
  CHECK(pc.tells("\r\nWould stay: " + file + ": Permission denied\r\n"));
  CHECK(pc.tells("Would go: 2 files of 2 bytes"));
}

TEST_CASE("a wash that begins in a turn of a preview is whole, and nothing is told of the preview") {
  PreviewPc pc;
  pc.begin();
  bool again = false;
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 3) pc.icon().mnuRemove_Click();
    // In the wash's turns: its display is closed, and the user asks for a preview again.
    if (turn == 6) pc.progress()->cmdFinish_Click();
    if (turn == 7 && !again) {
      again = true;
      pc.main().cmdPreview_Click();
      CHECK(pc.window().report.Visible);
      pc.window().cmdCancel_Click();
    }
  };
  pc.main().cmdPreview_Click();
  CHECK(again);
  CHECK(pc.washes == 1);
  CHECK(pc.tempFilesLeft() == 0);
  CHECK_FALSE(pc.window().form.Visible);
  CHECK_FALSE(pc.window().report.Visible);
}

TEST_CASE("the process ends in the midst of a preview as it does else, with the settings saved") {
  PreviewPc pc;
  pc.begin();
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 3) pc.icon().mnuExit_Click();
  };
  CHECK(ProgramPc::ends([&] { pc.main().cmdPreview_Click(); }));
  CHECK(pc.pc.turns == 3);
  CHECK(pc.stored("chkTempFolder") == "1");
}
