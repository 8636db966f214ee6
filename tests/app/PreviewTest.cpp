// The preview that the main window asks for.
#include <doctest/doctest.h>

#include "app/ToldPc.h"
#include "cleaners/BrowserFiles.h"
#include "support/Golden.h"

using namespace zub;

namespace {

bool tells(ProgramPc& pc, std::string_view text) {
  return contains(pc.main().preview.txtResult, text);
}

}  // namespace

TEST_CASE("previews, step by step") {
  Story story;
  // What the wash of the temp folder, ticked on the screen alone, would remove.
  const auto begin = [&](ToldPc& pc) {
    pc.tempFiles();
    pc.setting("chkTempFolder", "0");
    pc.begin();
    pc.options().LstIcons.Check(iconRow::TempFolder, 1);
  };
  const auto preview = [](ToldPc& pc) { pc.press("cmdPreview", &frmMain::cmdPreview_Click); };
  {
    ToldPc pc(story,
              "By the ticks on the screen; the PC and the program stay as they are. A wash then takes its "
              "report away");
    begin(pc);
    const std::string before = pc.pc.snapshot();
    preview(pc);
    CHECK(pc.pc.diffSince(before) == "");
    CHECK(pc.program->engine.clean.txtResult == "");
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
  }
  {
    ToldPc pc(story, "A message that a wash would show is a line of it, and so is what would stay");
    begin(pc);
    pc.options().chkSkipMessages.Value(1);
    pc.pc.lock(ProgramPc::Temp + "b");
    pc.pc.folder(ProgramPc::Temp + "sub");
    pc.options().LstIcons.Check(iconRow::RunHistory, 1);
    story.settle();
    preview(pc);
  }
  {
    ToldPc pc(story, "Stop ends it in its turn, without a report; until then its animation moves");
    begin(pc);
    pc.pc.onDoEvents = [&](int turn) {
      pc.serve(pc.pc.ticks += 100);
      if (turn == 1) pc.press("cmdPreview: a second one does not begin", &frmMain::cmdPreview_Click);
      if (turn == 4) pc.step("cmdStop", [&] { pc.main().preview.cmdStop_Click(); });
    };
    preview(pc);
  }
  {
    ToldPc pc(story, "A wash that begins in a turn is whole, and nothing is told of the preview");
    begin(pc);
    pc.pc.onDoEvents = [&](int turn) {
      if (turn == 3) pc.step("mnuRemove in turn 3", [&] { pc.icon().mnuRemove_Click(); });
      // In the wash's turns: its display is closed, and the user asks for a preview again.
      if (turn == 6) pc.finish();
      if (turn != 7) return;
      preview(pc);
      pc.step("cmdCancel of the report", [&] { pc.main().preview.cmdCancel_Click(); });
    };
    preview(pc);
  }
  {
    ToldPc pc(story, "The process ends in its midst as it does else, with the settings saved");
    begin(pc);
    pc.pc.onDoEvents = [&](int turn) {
      if (turn == 3) story.step("mnuExit in turn 3", [&] { pc.icon().mnuExit_Click(); });
    };
    preview(pc);
  }
  checkGolden("previews.txt", story.text);
}

TEST_CASE(
    "a preview knows the traces that washes of this process have left in force, and leaves none itself") {
  const std::string key = "HKEY_CURRENT_USER\\Software\\Shop";
  for (const bool inForce : {false, true}) {
    CAPTURE(inForce);
    ProgramPc pc;
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
    CHECK(tells(pc, inForce ? "1 registry key, 2 values" : "0 registry keys, 1 value"));
    CHECK(traces.KeyMode == inForce);
    CHECK_FALSE(traces.ValueMode);
  }
}

TEST_CASE("a preview looks at the profiles that the program has found, as its wash does") {
  ProgramPc pc;
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
  CHECK(tells(pc, "Would go: 1 file of 1 byte,"));
}
