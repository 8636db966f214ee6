// The about box, and the drawn message box.
#include "windows/Screen.h"
#include "windows/Story.h"
// Behind it.
#include <shlwapi.h>

using namespace zub::drive;

TEST_CASE("the about box lies over the main window until it is closed") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  main.child("About").click();
  const Window about = zub.window(title::About);
  CHECK(about.hasChild("Zubrane"));
  CHECK(about.child("STATIC", 2).text().starts_with("Version "));
  CHECK_FALSE(main.isEnabled());
  REQUIRE(about.comesToFront());
  key(VK_ESCAPE);
  CHECK(zub.hides(title::About));
  CHECK(soon([&] { return main.isEnabled(); }));
  CHECK(main.comesToFront());
  main.child("About").click();
  zub.window(title::About).child("&OK").click();
  CHECK(zub.hides(title::About));
}

TEST_CASE(
    "the system's information tool is started as the registry names it; without one the about box says so") {
  const Story story;
  const pc::fs::path report = pc::temp() / "report";
  const std::string tool = "\"%WINDIR%\\system32\\cmd.exe\" /c echo told>" + report.string();
  const char* key = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
  REQUIRE(SHSetValueA(HKEY_LOCAL_MACHINE, key, "PATH", REG_EXPAND_SZ, tool.c_str(),
                      static_cast<DWORD>(tool.size() + 1)) == ERROR_SUCCESS);
  const Zub zub;
  zub.main().child("About").click();
  const Window information = zub.window(title::About).child("&System info");
  information.click();
  CHECK(soon([&] { return pc::exists(report); }));

  RegDeleteKeyA(HKEY_LOCAL_MACHINE, key);
  information.click();
  CHECK(answer(zub, "Zubrane") == "System Information Is Unavailable At This Time");
  CHECK(zub.window(title::About).comesToFront());
}

TEST_CASE("the about box opens in the middle of the main window, wherever that is") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  const auto middle = [](const RECT& place) {
    return POINT{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  };
  for (const int corner : {200, 5}) {
    SetWindowPos(main.handle(), nullptr, corner, corner, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    main.child("About").click();
    const Window about = zub.window(title::About);
    CHECK(std::abs(middle(about.place()).x - middle(main.place()).x) <= 1);
    CHECK(std::abs(middle(about.place()).y - middle(main.place()).y) <= 1);
    about.child("&OK").click();
    CHECK(zub.hides(title::About));
  }
}

TEST_CASE("the about box stays modal while a wash runs and ends under it") {
  for (const bool closedFirst : {false, true}) {
    CAPTURE(closedFirst);
    const Story story;
    const Zub zub;
    const Window main = zub.main();
    main.child("About").click();
    const Window about = zub.window(title::About);
    zub.trayEntry('R');
    zub.window(title::Progress).child("&Finish");
    if (closedFirst) {
      PostMessageA(about.handle(), WM_CLOSE, 0, 0);  // it lies under the progress window
      CHECK(zub.hides(title::About));
      CHECK_FALSE(main.isEnabled());
    }
    finish(zub);
    CHECK(soon([&] { return main.isVisible(); }));
    CHECK(main.isEnabled() == closedFirst);
    if (!closedFirst) about.child("&OK").click();
    CHECK(soon([&] { return main.isEnabled(); }));
  }
}

TEST_CASE("the drawn message box shows its texts, its icon and its buttons on its background") {
  const Story story;
  const Zub program("", "show_message_box.exe");
  const Window box = program.window("Zubrone");
  const Window yes = box.child("&Yes");
  constexpr int Plain = 90;
  for (const Window& control :
       {box.child("Zubrone"), box.child("Are you sure?"), box.child("ZubraneControl", 0),
        box.child("ZubraneControl", 1), yes, box.child("&No")}) {
    CAPTURE(control.caption());
    CHECK(soon([&] { return contrastIn(control.place()) > Plain; }, 5));
  }
  yes.click();
  CHECK(box.isVisible());  // the buttons lead nowhere
}
