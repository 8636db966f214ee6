#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

TEST_CASE("the animation runs through pictures 1 to 4, never 5, and rests on 0") {
  WashFixture pc;
  frmAnimated::State& shown = pc.progress();
  pc.engine.animated->StartAnimation();
  for (const Picture expected : {Picture::Frame1, Picture::Frame2, Picture::Frame3, Picture::Frame4,
                                 Picture::Frame1, Picture::Frame2}) {
    pc.engine.animated->Timer_Tick();
    CHECK(shown.ImgAnimate.picture == expected);
  }
  pc.engine.animated->AppName("Task");
  pc.engine.animated->RemoveEntries(removing::Files);
  pc.engine.animated->StopAnimation();
  CHECK_FALSE(shown.Timer.Enabled);
  CHECK(shown.ImgAnimate.picture == Picture::Frame0);
  CHECK(shown.ImgEntries.picture == Picture::None);
  CHECK(shown.cmdFinish.Caption == "&Finish");
  CHECK(shown.cmdLog.Visible);
  CHECK(shown.StatusBar1[0] == "Finished");
  CHECK(shown.lblApplication.Caption == "Finished");
  CHECK(shown.lblCurrent.Caption == "Select Finish to close this dialog");
  pc.engine.animated->StartAnimation();
  CHECK(shown.Timer.Enabled);
  CHECK(shown.cmdFinish.Caption == "&Cancel");
  CHECK_FALSE(shown.cmdLog.Visible);
}

TEST_CASE("the kind of removal shows its text and its mark; an unknown kind is only kept") {
  struct {
    int kind;
    const char* text;
    Picture mark;
  } const rows[] = {{1, "Removing registry entries.", Picture::KindRegistry},
                    {2, "Removing files", Picture::KindFiles},
                    {3, "Removing folder", Picture::KindFolder},
                    {4, "Removing folder", Picture::KindFolder},
                    {-1, "Removing folder", Picture::KindFolder},
                    {0, "", Picture::None}};
  WashFixture pc;
  for (const auto& row : rows) {
    pc.engine.animated->RemoveEntries(row.kind);
    CHECK(pc.engine.animated->RemoveEntries() == row.kind);
    CHECK(pc.progress().lblRemove.Caption == row.text);
    CHECK(pc.progress().ImgEntries.picture == row.mark);
  }
}

TEST_CASE("a line with a leading tab also goes to the progress window, without the tab") {
  WashFixture pc;
  const std::string& current = pc.progress().lblCurrent.Caption;
  pc.engine.clean.AddItem("\tdetail\tand more");
  pc.engine.clean.AddItem("heading");
  CHECK(current == "detail\tand more");
  pc.engine.clean.AddItem("\t");
  CHECK(current.empty());
  CHECK(pc.takeReport() == "\tdetail\tand more\r\nheading\r\n\t\r\n");
}

TEST_CASE("the closing figures group the bytes by thousands") {
  struct {
    std::int32_t bytes;
    const char* figure;
  } const rows[] = {{0, "100"}, {1, "1"}, {999, "999"}, {1000, "1,000"}, {1234567, "1,234,567"}};
  for (const auto& [bytes, figure] : rows) {
    WashFixture pc;
    pc.engine.TotalBytes = bytes;
    pc.engine.animated->StopAnimation();
    CHECK(pc.progress().lblRemove.Caption ==
          std::string("Total amount of space restored: ") + figure + " Bytes");
  }
}

TEST_CASE("the report outlives the progress window, and hides without losing its text") {
  WashFixture pc;
  pc.engine.animated->StartClean();
  pc.engine.animated->cmdLog_Click();
  CHECK(pc.engine.clean.form.Visible);
  pc.engine.animated->cmdFinish_Click();
  pc.engine.clean.cmdCancel_Click();
  CHECK_FALSE(pc.engine.clean.form.Visible);
  pc.engine.clean.form.Show();
  pc.owner.calls.clear();
  pc.engine.clean.CloseBox();
  CHECK_FALSE(pc.engine.clean.form.Visible);
  CHECK(pc.owner.calls == std::vector<std::string>{"Enable"});
  CHECK(pc.takeReport().starts_with("Zubrone\r\n"));
}
