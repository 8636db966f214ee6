// The about box.
#include "windows/Story.h"

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

TEST_CASE("without the system's information tool, the about box says so") {
  const Story story;
  const Zub zub;
  zub.main().child("About").click();
  zub.window(title::About).child("&System info").click();
  CHECK(answer(zub, "Zubrane") == "System Information Is Unavailable At This Time");
  CHECK(zub.window(title::About).comesToFront());
}
