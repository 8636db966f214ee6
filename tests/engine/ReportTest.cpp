#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

TEST_CASE("a line with a leading tab also goes to the progress window, without the tab") {
  WashFixture pc;
  pc.progress().lblCurrent.Caption = "before";
  pc.engine.clean.AddItem("heading");
  CHECK(pc.progress().lblCurrent.Caption == "before");
  pc.engine.clean.AddItem("\tdetail\tand more");
  CHECK(pc.progress().lblCurrent.Caption == "detail\tand more");
  pc.engine.clean.AddItem("\t");
  CHECK(pc.progress().lblCurrent.Caption.empty());
  CHECK(pc.engine.clean.txtResult == "heading\r\n\tdetail\tand more\r\n\t\r\n");
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

TEST_CASE("the report stays readable after the progress window and hides without losing its text") {
  WashFixture pc;
  pc.engine.animated->StartClean();
  pc.engine.animated->cmdLog_Click();
  CHECK(pc.engine.clean.form.Visible);
  pc.engine.animated->cmdFinish_Click();
  const std::string report = pc.engine.clean.txtResult;
  CHECK_FALSE(report.empty());
  pc.engine.clean.cmdCancel_Click();
  CHECK_FALSE(pc.engine.clean.form.Visible);

  pc.engine.clean.form.Show();
  pc.owner.calls.clear();
  pc.engine.clean.CloseBox();
  CHECK_FALSE(pc.engine.clean.form.Visible);
  CHECK(pc.owner.calls == std::vector<std::string>{"Enable"});
  CHECK(pc.engine.clean.txtResult == report);
}
