// The about box.
#include "windows/Story.h"
// Behind it.
#include <shlwapi.h>

using namespace zub::drive;

TEST_CASE("the about box lies over the middle of the main window, wherever that is, until it is closed") {
  const Story story;
  const Zub zub;
  const Window main = zub.main();
  const auto opened = [&](int corner) {
    SetWindowPos(main.handle(), nullptr, corner, corner, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    main.child("About").click();
    const Window about = zub.window(title::About);
    CHECK(about.isInTheMiddleOf(main.place()));
    CHECK_FALSE(main.isEnabled());
    REQUIRE(about.comesToFront());
    return about;
  };
  CHECK(opened(200).child("STATIC", 2).text().starts_with("Version "));
  key(VK_ESCAPE);
  CHECK(zub.hides(title::About));
  CHECK(soon([&] { return main.isEnabled(); }));
  CHECK(main.comesToFront());
  opened(5).child("&OK").click();
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

TEST_CASE("the about box stays modal while a wash runs and ends under it") {
  for (const bool closedFirst : {false, true}) {
    CAPTURE(closedFirst);
    const Story story;
    const Zub zub;
    const Window main = zub.main();
    main.child("About").click();
    const Window about = zub.window(title::About);
    zub.trayEntry('R');
    washed(zub);
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
