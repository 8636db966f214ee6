#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

namespace {

// Three tasks: one that only counts, one that removes five files, one that only counts.
struct LongWash : WashFixture {
  LongWash() {
    for (const char* name : {"1", "2", "3", "4", "5"}) pc.file(std::string("C:\\Traces\\") + name);
    const auto counted = [this](Task task) {
      CleanerFrame frame(engine, task);
      frame.announce();
      frame.heading();
      frame.finish();
    };
    cleaner(Task::RunHistory, [counted] { counted(Task::RunHistory); });
    cleaner(Task::TempFolder, [this] {
      CleanerFrame frame(engine, Task::TempFolder);
      frame.announce();
      engine.deleter->DeleteFolder("C:\\Traces", "*.*");
      frame.finish();
    });
    cleaner(Task::Office, [counted] { counted(Task::Office); });
  }
  int filesLeft() {
    int left = 0;
    for (const char* name : {"1", "2", "3", "4", "5"}) left += pc.hasFile(std::string("C:\\Traces\\") + name);
    return left;
  }
  void cancelWhenFilesLeft(int count) {
    pc.onDoEvents = [this, count](int) {
      if (filesLeft() != count) return;
      pc.onDoEvents = nullptr;
      CHECK(progress().cmdFinish.Caption == "&Cancel");
      engine.animated->cmdFinish_Click();
    };
  }
};

}  // namespace

TEST_CASE("the animation runs through pictures 1 to 4, never 5, and rests on 0") {
  WashFixture pc;
  pc.engine.animated->StartAnimation();
  CHECK(pc.progress().timer.Enabled);
  CHECK(pc.progress().timer.Interval == 100);
  CHECK(pc.progress().cmdFinish.Caption == "&Cancel");
  CHECK_FALSE(pc.progress().cmdLog.Visible);
  for (const Picture expected : {Picture::Frame1, Picture::Frame2, Picture::Frame3, Picture::Frame4,
                                 Picture::Frame1, Picture::Frame2}) {
    pc.engine.animated->Timer_Tick();
    CHECK(pc.progress().ImgAnimate.picture == expected);
  }
  pc.engine.animated->RemoveEntries(removing::Files);
  pc.engine.animated->StopAnimation();
  CHECK_FALSE(pc.progress().timer.Enabled);
  CHECK(pc.progress().ImgAnimate.picture == Picture::Frame0);
  CHECK(pc.progress().ImgEntries.picture == Picture::None);
  CHECK(pc.progress().cmdFinish.Caption == "&Finish");
  CHECK(pc.progress().cmdLog.Visible);
  CHECK(pc.progress().StatusBar1[0] == "Finished");
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

TEST_CASE("Cancel closes the display; the wash goes on unseen and counts anew") {
  LongWash pc;
  pc.cancelWhenFilesLeft(3);
  pc.engine.animated->StartClean();
  CHECK(pc.filesLeft() == 0);
  CHECK(pc.owner.calls == std::vector<std::string>{"Enable", "FinishedCleaning"});
  CHECK(pc.engine.animated.loaded());
  CHECK_FALSE(pc.progress().form.Visible);
  CHECK(pc.progress().lblCompleted.Caption == "2");
  CHECK(pc.progress().Image5.picture == Picture::OpenMark);
  CHECK(pc.progress().Image8.picture == Picture::DoneMark);
  CHECK(pc.engine.clean.txtResult.find("the Office MRU") != std::string::npos);
  CHECK(pc.options.lblLastRemoval.Caption == "Last removal on 9/14/2001 at 10:20:30 AM");
}

TEST_CASE("Cancel of a wash that is to close the program ends it in the midst") {
  LongWash pc;
  pc.options.chkCloseAfterWash.Value(1);
  pc.cancelWhenFilesLeft(3);
  CHECK_THROWS_AS(pc.engine.animated->StartClean(), EndOfProcess);
  CHECK(pc.filesLeft() == 3);
  CHECK(pc.engine.clean.txtResult.find("the Office MRU") == std::string::npos);
}

TEST_CASE("the end of the process passes through every error path of a removal") {
  LongWash pc;
  pc.options.chkBleach.Value(1);
  pc.pc.file("C:\\Traces\\big", std::string(8192, 'A'));
  pc.pc.onDoEvents = [&](int) {
    if (pc.progress().lblCurrent.Caption == "Shredding file big") throw EndOfProcess{};
  };
  CHECK_THROWS_AS(pc.engine.animated->StartClean(), EndOfProcess);
  CHECK(pc.pc.hasFile("C:\\Traces\\big"));
}
