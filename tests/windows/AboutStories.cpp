// The about box.
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
