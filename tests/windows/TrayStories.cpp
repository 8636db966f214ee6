// Life in the tray.
#include "windows/Story.h"

using namespace zub::drive;

TEST_CASE("a minimised window goes to the tray, and a click on the icon brings it back and away") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  PostMessageA(main.handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  CHECK(zub.hides(title::Main));
  zub.clickTray();
  CHECK(soon([&] { return main.isVisible() && IsIconic(main.handle()) == 0; }));
  zub.trayMessage(WM_LBUTTONDOWN);
  CHECK(zub.hides(title::Main));
  // The second press of a double-click follows the first one, which alone shows the window.
  zub.trayMessage(WM_LBUTTONDOWN);
  zub.trayMessage(WM_LBUTTONDBLCLK);
  CHECK(soon([&] { return main.isVisible(); }));
  // In a wash it brings the progress window to the front.
  const Window progress = wash(zub);
  PostMessageA(progress.handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  zub.trayMessage(WM_LBUTTONDBLCLK);
  CHECK(progress.comesToFront());
}

TEST_CASE("the menu of the icon shows, washes and ends") {
  const Story story;
  const Trace trace;
  const Zub zub("/STARTUP");
  zub.overTray();
  CHECK((isLaterWine() || tipComes("Zubrone")));
  zub.trayEntry('S');
  zub.main();
  zub.trayEntry('S');
  CHECK(zub.hides(title::Main));

  zub.trayEntry('R');
  washed(zub);
  CHECK_FALSE(trace.isThere());
  finish(zub);
  CHECK_FALSE(zub.shows(title::Main));

  zub.trayEntry('E');
  CHECK(zub.ends());
  CHECK(pc::storedOption("lblLastRemoval").starts_with("Last removal on "));
}

TEST_CASE("Exit while a message of a wash is open ends the program there") {
  const std::string player = "Software\\Microsoft\\MediaPlayer\\Player\\RecentFileList";
  for (const bool session : {false, true}) {
    CAPTURE(session);
    const Story story;
    for (const char* chosen : {"chkTempFolder", "chkWMP", "chkSkipMessages"}) pc::option(chosen);
    pc::putValue(player, "File0", "a task that comes later");
    pc::put(pc::temp() / "in use.tmp", "x");
    const Holder holder(pc::temp() / "in use.tmp");
    const Zub zub;
    const Window main = zub.main();
    main.child("&Start Cleaning").click();
    zub.dialog("Permission denied");
    if (session) {
      CHECK(main.send(WM_QUERYENDSESSION) != 0);
      PostMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
    } else {
      zub.trayEntry('E');
    }
    CHECK(zub.ends());
    CHECK(pc::hasKey(player));
    CHECK(pc::storedOption("chkWMP") == "1");
    CHECK(pc::storedOption("lblLastRemoval").empty());
    pc::removeKey(player);
  }
}
