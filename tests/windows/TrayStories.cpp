// Life in the tray. The icon lies at the right end of the taskbar.
#include "windows/Story.h"

using namespace zub::drive;

namespace {

void pointToIcon() {
  const Window taskbar(FindWindowA("Shell_TrayWnd", nullptr));
  REQUIRE(taskbar.isVisible());
  const RECT all = taskbar.place();
  constexpr int FromTheEnd = 11;
  movePointer(static_cast<int>(all.right) - FromTheEnd, static_cast<int>(all.top + all.bottom) / 2);
}

void clickIcon(bool right = false) {
  pointToIcon();
  pressButton(right);
  releaseButton(right);
}

bool menuIsOpen() {
  return soon([] {
    const HWND menu = FindWindowA("#32768", nullptr);
    return menu != nullptr && IsWindowVisible(menu) != 0;
  });
}

// By the access key of its entry.
void chooseEntry(char letter) {
  clickIcon(true);
  REQUIRE(menuIsOpen());
  key(letter);
}

}  // namespace

TEST_CASE("a minimised window goes to the tray, and a click on the icon brings it back and away") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  PostMessageA(main.handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  CHECK(zub.hides(title::Main));
  clickIcon();
  CHECK(soon([&] { return main.isVisible() && IsIconic(main.handle()) == 0; }));
  zub.trayMessage(WM_LBUTTONDOWN);
  CHECK(zub.hides(title::Main));
  // The second press of a double-click follows the first one, which alone shows the window.
  zub.trayMessage(WM_LBUTTONDOWN);
  zub.trayMessage(WM_LBUTTONDBLCLK);
  CHECK(soon([&] { return main.isVisible(); }));
}

TEST_CASE("a double-click on the icon brings the progress window to the front") {
  const Story story;
  const Zub zub;
  const Window progress = wash(zub);
  PostMessageA(progress.handle(), WM_SYSCOMMAND, SC_MINIMIZE, 0);
  zub.trayMessage(WM_LBUTTONDBLCLK);
  CHECK(progress.comesToFront());
}

TEST_CASE("the menu of the icon shows, washes and ends") {
  const Story story;
  pc::option("chkTempFolder");
  const pc::fs::path trace = pc::temp() / "trace.tmp";
  pc::put(trace, "trace");
  const Zub zub("/STARTUP");
  zub.trayWindow();
  chooseEntry('S');
  zub.main();
  chooseEntry('S');
  CHECK(zub.hides(title::Main));

  chooseEntry('R');
  zub.window(title::Progress).child("&Finish");
  CHECK_FALSE(pc::exists(trace));
  finish(zub);
  CHECK_FALSE(zub.shows(title::Main));

  chooseEntry('E');
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
    const pc::fs::path locked = pc::temp() / "in use.tmp";
    pc::put(locked, "x");
    const HANDLE user =
        CreateFileA(locked.string().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const Zub zub;
    const Window main = zub.main();
    main.child("&Start Cleaning").click();
    zub.dialog("Permission denied");
    if (session) {
      CHECK(main.send(WM_QUERYENDSESSION) != 0);
      PostMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
    } else {
      chooseEntry('E');
    }
    CHECK(zub.ends());
    CloseHandle(user);
    CHECK(pc::hasKey(player));
    CHECK(pc::storedOption("chkWMP") == "1");
    CHECK(pc::storedOption("lblLastRemoval").empty());
    pc::removeKey(player);
  }
}
