// The program starts, ends, and starts again.
#include "windows/Story.h"

using namespace zub::drive;

TEST_CASE("everything chosen is there again at the next start") {
  const Story story;
  {
    const Zub zub;
    const Window main = zub.main();
    main.child("Cookies").tick();
    icons::clickBox(main, 1);
    openTab(main, "Custom Plugins");
    const Window plugins = main.child("SysListView32", 0);
    rows::clickCheck(plugins, rows::find(plugins, "Home Photo Album"));
    openTab(main, "Options");
    main.child("Use shredder").tick();
    choose(main.child("COMBOBOX", 0), "7");
    openTab(main, " Standard Plugins");
    rows::clickCheck(main.child("SysListView32", 0), 3);
    zub.close();
  }
  const std::pair<const char*, const char*> stored[] = {{"chkWMP", "1"},
                                                        {"chkIE", "0"},
                                                        {"chkIECookies", "1"},
                                                        {"ZUBPlugin Home Photo Album", "1"},
                                                        {"chkBleach", "1"},
                                                        {"cmbShredder", "6"},
                                                        {"ZUBPlugin Modem and Fax Logs", "0"}};
  for (const auto& [name, value] : stored) CHECK(pc::storedOption(name) == value);

  const Zub zub;
  const Window main = zub.main();
  openTab(main, "Custom Plugins");
  const Window plugins = main.child("SysListView32", 0);
  CHECK(rows::isChecked(plugins, rows::find(plugins, "Home Photo Album")));
  CHECK_FALSE(rows::isChecked(plugins, rows::find(plugins, "Modem and Fax Logs")));
  openTab(main, "Options");
  CHECK(main.child("COMBOBOX", 0).text() == "7");
  openTab(main, " Standard Plugins");
  const Window standard = main.child("SysListView32", 0);
  CHECK_FALSE(rows::isChecked(standard, 2));
  CHECK(rows::isChecked(standard, 3));
}

TEST_CASE("a second instance ends by itself, also where it may not ask the first one") {
  const Story story;
  {
    const Zub first;
    const Window main = first.main();
    CHECK(Zub().ends());
    CHECK(first.main() == main);
  }
  // One with other rights is seen by what it denies.
  ACL nobody;
  SECURITY_DESCRIPTOR descriptor;
  REQUIRE(InitializeAcl(&nobody, sizeof nobody, ACL_REVISION) != 0);
  REQUIRE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) != 0);
  REQUIRE(SetSecurityDescriptorDacl(&descriptor, TRUE, &nobody, FALSE) != 0);
  SECURITY_ATTRIBUTES denied{sizeof denied, &descriptor, FALSE};
  const HANDLE other = CreateMutexA(&denied, FALSE, "Zubrane runs");
  REQUIRE(other != nullptr);
  CHECK(Zub().ends());
  CloseHandle(other);
}

TEST_CASE("started by Windows the program waits in the tray, and washes at once where that is chosen") {
  const struct {
    const char* switches;
    const char* chkRunStarted;
    bool washes;
  } rows[] = {{"/STARTUP", "0", false}, {"/STARTUP", "1", true}, {"/SCHEDULER", "0", true}};
  for (const auto& row : rows) {
    CAPTURE(row.switches);
    const Story story;
    const Trace trace;
    pc::option("chkRunStarted", row.chkRunStarted);
    const Zub zub(row.switches);
    zub.trayWindow();
    if (row.washes) {
      washed(zub);
      CHECK_FALSE(zub.shows(title::Main));
      finish(zub);
    }
    CHECK(trace.isThere() != row.washes);
    CHECK_FALSE(zub.shows(title::Main));
    zub.trayMessage(WM_LBUTTONDOWN);
    openTab(zub.main(), " Standard Plugins");
    CHECK(rows::count(zub.main().child("SysListView32", 0)) > 70);
  }
}

TEST_CASE("asked for its switches, the program tells them and ends") {
  const Story story;
  const Zub zub("/?");
  const std::string told = answer(zub, title::Main);
  for (const char* name : {"/STARTUP", "/SCHEDULER"}) CHECK(told.find(name) != std::string::npos);
  CHECK(zub.ends());
  CHECK_FALSE(pc::hasKey(pc::Store));  // nothing was begun
}
