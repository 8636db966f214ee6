#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

// The interval may come due in any turn of a wash that the user started, and then starts a further wash inside.
TEST_CASE("a wash inside another wash's turn: both finish, at whichever turn it comes") {
  bool inTime = true;
  for (int due = 1; inTime; ++due) {
    CAPTURE(due);
    WashFixture pc;
    for (const char* trace : {"a\\1", "a\\2", "b\\3", "b\\4", "c\\5", "c\\6"}) {
      pc.pc.file(std::string("C:\\Traces\\Folder ") + trace);
    }
    for (const char* letter : {"first", "second"}) pc.pc.file(std::string("C:\\Bin\\The letter ") + letter);
    pc.pc.file("C:\\Office\\list");  // the wash inside ends with shorter lists than the outer one's
    pc.pc.file("C:\\Keep\\kept");
    int finished = 0;
    pc.cleaner(Task::TempFolder, [&] { pc.engine.deleter->DeleteFolder("C:\\Traces", "*.*"); });
    pc.cleaner(Task::Office, [&] { pc.engine.deleter->DeleteFolder("C:\\Office", "*.*"); });
    pc.cleaner(Task::RecycleBin, [&] {
      pc.engine.deleter->DeleteFilesInFolder("C:\\Bin", "*.*");
      ++finished;
    });
    pc.pc.onDoEvents = [&](int turn) {
      if (turn == due) pc.engine.animated->StartClean();
    };
    pc.engine.animated->StartClean();
    inTime = pc.pc.turns >= due;
    CHECK(finished == (inTime ? 2 : 1));
    pc.engine.deleter->ListFilesFolder("C:\\Traces", "*");
    CHECK(pc.engine.deleter->DelDirList.empty());
    CHECK(pc.engine.deleter->DelFileList.empty());
    CHECK_FALSE(pc.pc.hasFile("C:\\Bin\\The letter second"));
    CHECK(pc.pc.hasFolder("C:\\Traces"));
    CHECK(pc.pc.hasFile("C:\\Keep\\kept"));
    REQUIRE(due < 200);
  }
}
