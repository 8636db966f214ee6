#include <doctest/doctest.h>

#include "support/WashFixture.h"

using namespace zub;

namespace {

std::string traceName(int number) {
  return "C:\\Traces\\Folder" + std::to_string(number % 3) + "\\Trace" + std::to_string(number);
}

}  // namespace

// The interval may come due in any turn of a wash that the user started, and then starts a further wash inside.
TEST_CASE("a wash inside another wash's turn: both finish, at whichever turn it comes") {
  bool inTime = true;
  for (int due = 1; inTime; ++due) {
    CAPTURE(due);
    WashFixture pc;
    for (int number = 0; number < 6; ++number) pc.pc.file(traceName(number));
    pc.pc.file("C:\\Bin\\The first letter.txt");
    pc.pc.file("C:\\Bin\\The second letter.txt");
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
    for (int number = 0; number < 6; ++number) CHECK_FALSE(pc.pc.hasFile(traceName(number)));
    CHECK_FALSE(pc.pc.hasFile("C:\\Bin\\The second letter.txt"));
    CHECK(pc.pc.hasFolder("C:\\Traces"));
    CHECK_FALSE(pc.pc.hasFolder("C:\\Traces\\Folder0"));
    CHECK(pc.pc.hasFile("C:\\Keep\\kept"));
    REQUIRE(due < 200);
  }
}
