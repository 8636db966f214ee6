#include <doctest/doctest.h>

#include <map>

#include "support/Golden.h"
#include "support/Story.h"
#include "support/WashFixture.h"

using namespace zub;

TEST_CASE("what the progress window and the report show, step by step") {
  WashFixture pc;
  AutoLoad<frmAnimated>& window = pc.engine.animated;
  frmClean& report = pc.engine.clean;
  const std::map<Picture, std::string> marks{{Picture::None, "none"},
                                             {Picture::KindRegistry, "registry"},
                                             {Picture::KindFolder, "folder"},
                                             {Picture::KindFiles, "files"}};
  Story story;
  story.look = [&]() -> Story::Things {
    const frmAnimated::State& shown = window.peek().state;
    std::string told;
    for (const std::string& call : pc.owner.calls) told += call + " ";
    return {{"loaded", window.loaded() ? "yes" : "no"},
            {"visible", shown.form.Visible ? "yes" : "no"},
            {"animation",
             std::to_string(static_cast<int>(shown.ImgAnimate.picture) - static_cast<int>(Picture::Frame0)) +
                 (shown.Timer.Enabled ? " moving" : " still")},
            {"mark", marks.at(shown.ImgEntries.picture)},
            {"RemoveEntries", std::to_string(shown.RemoveEntries)},
            {"lblRemove", shown.lblRemove.Caption},
            {"lblApplication", shown.lblApplication.Caption},
            {"lblCurrent", shown.lblCurrent.Caption},
            {"status bar", shown.StatusBar1[0] + " | " + shown.StatusBar1[1]},
            {"buttons", shown.cmdFinish.Caption + (shown.cmdLog.Visible ? " " + shown.cmdLog.Caption : "")},
            {"closes by itself", shown.CloseWindowTimer.Enabled ? "yes" : "no"},
            {"report", std::string(report.form.Visible ? "on show: " : "hidden: ") + report.txtResult},
            {"lblLastRemoval", pc.options.lblLastRemoval.Caption},
            {"the main window is told", told}};
  };
  const auto press = [&](std::string_view what, void (frmAnimated::*click)()) {
    story.step(what, [&] { ((*window).*click)(); });
  };
  story.chapter("The animation runs through pictures 1 to 4, and rests on 0");
  press("StartAnimation", &frmAnimated::StartAnimation);
  for (int tick = 0; tick < 6; ++tick) press("Timer", &frmAnimated::Timer_Tick);
  story.chapter("The kind of removal; one that is unknown is only kept");
  for (const int kind : {1, 2, 3, 4, -1, 0, 2}) {
    story.step("RemoveEntries " + std::to_string(kind), [&] { window->RemoveEntries(kind); });
  }
  story.chapter("A line with a leading tab goes to the window too");
  for (const char* line : {"\tdetail\tand more", "heading", "\t"}) {
    story.step(line, [&] { report.AddItem(line); });
  }
  story.step("AppName Task", [&] { window->AppName("Task"); });
  story.chapter("The closing figures, by thousands; nothing counts as a hundred");
  for (const int bytes : {1, 999, 1000, 1234567, 0}) {
    pc.engine.TotalBytes = bytes;
    press(std::to_string(bytes) + " bytes, StopAnimation", &frmAnimated::StopAnimation);
  }
  press("StartAnimation", &frmAnimated::StartAnimation);
  story.chapter("A wash of nothing, and its report, which outlives the window");
  pc.engine.TotalBytes = 99;
  press("StartClean", &frmAnimated::StartClean);
  press("cmdLog", &frmAnimated::cmdLog_Click);
  press("cmdFinish", &frmAnimated::cmdFinish_Click);
  story.step("cmdCancel of the report", [&] { report.cmdCancel_Click(); });
  story.step("the report is shown again", [&] { report.form.Show(); });
  story.step("its close box", [&] { report.CloseBox(); });
  checkGolden("progress.txt", story.text);
}
