// The keyboard alone, and the window moved by its background.
#include <windows.h>
// Behind it.
#include <commctrl.h>

#include "windows/Story.h"

using namespace zub::drive;

TEST_CASE("space ticks a box and presses no button, arrows turn the tabs, access keys press") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  openTab(main, "Main");
  for (int tab = 0; tab < 2; ++tab) key(VK_TAB);
  REQUIRE(soon([] { return focus().caption() == "Cache"; }));
  key(VK_SPACE);
  CHECK(main.child("STATIC", 0).comesToSay("IE Cache - "));

  for (int tab = 0; tab < 3; ++tab) chord({VK_SHIFT, VK_TAB});  // backward, and so to the last one
  REQUIRE(soon([] { return focus().caption() == "About"; }));
  for (const int one : {VK_SPACE, VK_RETURN, VK_TAB}) key(one);  // no window comes to take the keyboard
  REQUIRE(soon([] { return focus().className() == "SysTabControl32"; }));
  key(VK_RIGHT);
  key(VK_RIGHT);
  CHECK(main.child("Use shredder").isVisible());
  key(VK_RIGHT);
  const int before = rows::count(main.child("LISTBOX", 0));
  chord({VK_MENU, 'A'});
  CHECK(soon([&] { return rows::count(main.child("LISTBOX", 0)) == before + 1; }));

  chord({VK_MENU, 'S'});
  zub.window(title::Progress).child("&Finish");
  chord({VK_MENU, 'F'});
  CHECK(zub.hides(title::Progress));
  zub.close();
  CHECK(pc::storedOption("chkIECache") == "1");
}

TEST_CASE("a letter without Alt is no access key, and the icon list goes back to its first item at any key") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  openTab(main, "Main");
  for (int tab = 0; tab < 2; ++tab) key(VK_TAB);
  REQUIRE(soon([] { return focus().caption() == "Cache"; }));
  key('S');
  CHECK(focus().caption() == "Cache");
  for (const int one : {int{'S'}, VK_RETURN, VK_ESCAPE, VK_F10}) {
    CAPTURE(one);
    icons::clickPicture(main, 5);
    main.child("Mail");
    key(one);
    main.child("Downloaded Programs");  // the choices of the first item have come
  }
  CHECK_FALSE(zub.shows(title::Progress));
  CHECK(main.isEnabled());
}

TEST_CASE("Ctrl and Tab turn the pages, and the headers can be clicked as before") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  main.child("Cache").tick();  // the keyboard is in the page, not on the headers
  chord({VK_CONTROL, VK_TAB});
  main.child("Create A New Plugin");
  openTab(main, "Custom Plugins");
  key(VK_TAB);  // a list of boxes that has just got the keyboard shows it on its first row
  REQUIRE(soon([] { return focus().className() == WC_LISTVIEWA; }));
  CHECK(soon([] { return focus().send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED) == 0; }));
  openTab(main, "Main");
  main.child("Cache").tick();
  chord({VK_CONTROL, VK_TAB});
  chord({VK_CONTROL, VK_SHIFT, VK_TAB});
  main.child("Downloaded Programs");
  chord({VK_CONTROL, VK_SHIFT, VK_TAB});  // on to the last
  main.child("Description");
  openTab(main, "Options");
  main.child("Use shredder");
  openTab(main, "Main");
  CHECK(main.child("STATIC", 0).text() == "Click on the item you need help with!");
}

TEST_CASE("the background of the main window is a handle to move it, a label on it is none") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  const RECT before = main.place();
  constexpr int Moved = 60;
  const auto drag = [](int x, int y) {
    movePointer(x, y);
    pressButton();
    for (int step = 4; step <= Moved; step += 4) movePointer(x + step, y + step);
    releaseButton();
  };
  const RECT label = main.child("Current time:").place();
  drag(static_cast<int>(label.left) + 4, static_cast<int>(label.top) + 4);
  main.settle();
  CHECK(main.place().left == before.left);
  // Between the buttons at the foot.
  constexpr int Right = 254, AboveTheFoot = 20;
  drag(static_cast<int>(before.left) + Right, static_cast<int>(before.bottom) - AboveTheFoot);
  CHECK(soon([&] { return main.place().left > before.left + Moved / 2; }));
  CHECK(main.place().top > before.top + Moved / 2);
}
