#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

namespace {

// A wash whose tasks write their names down.
struct RecordedWash : WashFixture {
  std::string ran;

  RecordedWash() {
    engine.clean.cleaners.customPlugin = [this](const std::string& name) { ran += "custom " + name + " "; };
    engine.clean.cleaners.standardPlugin = [this](const std::string& name) {
      ran += "standard " + name + " ";
    };
    for (const char* name : {"B", "A", "C"}) options.lstFiles.AddItem(name);
    for (const char* name : {"Y", "X"}) options.standardlist.AddItem(name);
  }
  std::string wash() {
    ran.clear();
    engine.animated->StartClean();
    return ran;
  }
};

}  // namespace

TEST_CASE("each row of the icon list switches its own task, which shows itself on the board") {
  using State = frmAnimated::State;
  struct {
    int iconRow;
    const char* status;
    const char* heading;  // "ZUB has cleaned ..., with the following results:"
    Label State::*label;
    Image State::*image;
  } const rows[] = {
      {7, "Document History", "the document history", &State::Label1, &State::Image3},
      {9, "Search/Find History", "the Find history", &State::Label2, &State::Image4},
      {6, "Run History", "the Run MRU", &State::Label3, &State::Image5},
      {8, "Temporary Folder", "the TEMP folder", &State::Label4, &State::Image6},
      {4, "Scandisk logs", "the SCANDISK files", &State::Label9, &State::Image11},
      {3, "Recycle bin", "the recycle bin", &State::Label5, &State::Image7},
      {2, "MS Office - MRU", "the Office MRU", &State::Label6, &State::Image8},
      {1, "Windows Media Player - MRU", "the Windows Media Player MRU", &State::Label10, &State::Image12},
      {5, "Netscape", "Netscape files ans registry entries", &State::Label7, &State::Image9},
      {0, "Internet Explorer", "IE files and registry entries", &State::Label8, &State::Image10},
  };
  std::size_t task = 0;
  for (const auto& row : rows) {
    CAPTURE(row.status);
    RecordedWash pc;
    const State& shown = pc.progress();
    pc.engine.clean.cleaners.builtIn[task] = [&] {
      clean(pc.engine, static_cast<Task>(task), [&] {
        CHECK((shown.*row.label).Bold);
        CHECK((shown.*row.label).ForeColor == 0x8000);
        CHECK((shown.*row.image).picture == Picture::OpenMark);
        CHECK(shown.lblApplication.Caption == row.status);
        CHECK(shown.StatusBar1[0] == row.status);
        CHECK(pc.takeReport().ends_with(std::string("\r\n\r\nZUB has cleaned ") + row.heading +
                                        ", with the following results:\r\n"));
        CHECK(shown.StatusBar1[1] == "Number of tasks competed: 0");
      });
    };
    pc.options.LstIcons.Check(row.iconRow, 1);
    CHECK(pc.wash().empty());
    CHECK((shown.*row.image).picture == Picture::DoneMark);
    CHECK_FALSE((shown.*row.label).Bold);
    CHECK((shown.*row.label).ForeColor == 0x8000);
    CHECK(shown.lblCompleted.Caption == "1");
    CHECK(shown.StatusBar1[1] == "Number of tasks competed: 1");
    ++task;
  }
}

TEST_CASE("the selected plugins run from first to last, and only where they are not left out") {
  RecordedWash pc;
  pc.options.lstFiles.Selected(0, true);
  pc.options.lstFiles.Selected(2, true);
  pc.options.standardlist.selectAll(true);
  CHECK(pc.wash() == "custom B custom C standard X standard Y ");
  CHECK(pc.progress().lblTasksTotal.Caption == "2");  // standard plugins do not count
  for (Label frmAnimated::State::*label : {&frmAnimated::State::Label11, &frmAnimated::State::Label14}) {
    CHECK((pc.progress().*label).ForeColor == 0x8000);
    CHECK_FALSE((pc.progress().*label).Bold);
  }
  CHECK(pc.progress().Image13.picture == Picture::DoneMark);
  CHECK(pc.progress().Image14.picture == Picture::DoneMark);

  pc.options.chkSkipPlugins.Value(1);
  CHECK(pc.wash().empty());
  CHECK(pc.progress().lblTasksTotal.Caption == "0");
}

TEST_CASE("a plugin list that changes under its own run is read safely") {
  RecordedWash pc;
  pc.options.lstFiles.AddItem("A plugin with a long name", 0);
  pc.options.lstFiles.selectAll(true);
  pc.engine.clean.cleaners.customPlugin = [&](const std::string& name) {
    pc.options.lstFiles.Clear();
    pc.ran += name;
  };
  CHECK(pc.wash() == "A plugin with a long name");
}

TEST_CASE("a wash with nothing selected writes its two headings, its time and the fixed figure") {
  RecordedWash pc;
  pc.engine.clean.txtResult = "the report of the wash before";
  pc.engine.TotalBytes = 99;
  CHECK(pc.wash() == "");
  CHECK(pc.takeReport() == "Zubrone\r\n\r\nLog file generated at 10:20:30 AM on 9/14/2001\r\n\r\n");
  CHECK(pc.progress().StatusBar1[1] == "Number of tasks competed: 0");
  CHECK(pc.progress().lblRemove.Caption == "Total amount of space restored: 100 Bytes");
  for (Image frmAnimated::State::*image : {&frmAnimated::State::Image13, &frmAnimated::State::Image14}) {
    CHECK((pc.progress().*image).picture == Picture::OpenMark);
  }
  CHECK(pc.options.lblLastRemoval.Caption == "Last removal on 9/14/2001 at 10:20:30 AM");
  CHECK(pc.progress().form.Visible);
  CHECK_FALSE(pc.progress().CloseWindowTimer.Enabled);  // it waits for the user
  CHECK(pc.owner.calls.empty());
  pc.engine.animated->cmdFinish_Click();
  CHECK(pc.owner.calls == std::vector<std::string>{"Enable", "FinishedCleaning"});
  CHECK_FALSE(pc.engine.animated.loaded());
}
