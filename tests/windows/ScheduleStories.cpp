// Washes without the user's hand: dated entries and the automatic interval.
#include "windows/Story.h"

using namespace zub::drive;

TEST_CASE("a dated entry is refused, added and removed") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  openTab(main, "Scheduler");
  const Window list = main.child("LISTBOX", 0), date = main.child("EDIT", 0);
  const int before = rows::count(list);
  fill(date, "whenever");
  main.child("&Add").click();
  CHECK(answer(zub, "ZUB Scheduler") == "Wrong date format");
  CHECK(soon([&] { return focus() == date; }));
  CHECK(rows::count(list) == before);
  fill(date, "12/24/2031");
  fill(main.child("EDIT", 1), "06:30:00 PM");
  main.child("&Add").click();
  REQUIRE(soon([&] { return rows::count(list) == before + 1; }));
  CHECK(rows::text(list, before).find("12/24/2031") != std::string::npos);
  CHECK(pc::exists("C:\\windows\\tasks\\ZUB.job"));
  rows::click(list, before);
  main.child("&Remove").click();
  CHECK(soon([&] { return rows::text(list, before).find("12/24/2031") == std::string::npos; }));
}

TEST_CASE("the automatic interval changes what the clock tells") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  const Window clock = main.child("Current time:");
  openTab(main, "Scheduler");
  const Window help = main.child("STATIC", 2);
  main.child("ZubraneControl", 5).tick();
  CHECK(help.comesToSay("Automatic run - "));
  CHECK(clock.comesToSay("Next auto track removal at:"));
  // Its tip comes over its text as it does over its arrow.
  const RECT text = main.child("COMBOBOX", 0).child("EDIT", 0).place();
  movePointer((text.left + text.right) / 2, (text.top + text.bottom) / 2);
  CHECK((isLaterWine() || tipComes("Automatically run ZUB every?")));
  // A text that names no interval leaves the current minute, in which a wash is due at once.
  const Window interval = main.child("COMBOBOX", 0);
  fill(interval.child("EDIT", 0), "now");
  zub.window(title::Progress).child("&Finish");
  finish(zub);
  zub.close();
  CHECK(pc::storedOption("chkRunAuto") == "1");
}
