// Every window as it shows itself, and as it tells itself to those who cannot see it.
#include "support/Golden.h"
#include "windows/Told.h"

using namespace zub;
using namespace zub::drive;

TEST_CASE("each window tells and shows what was approved, on each of its pages" *
          doctest::skip(isLaterWine())) {
  const Story story;
  pc::put(pc::temp() / "trace.tmp", "trace");
  for (const char* chosen : {"chkTempFolder", "chkIECache"}) pc::option(chosen);
  const Zub zub;
  const Window main = zub.main();
  Told told(zub);
  std::string text;
  const auto tell = [&](const std::string& when, const Window& window, std::string_view awaited = {}) {
    movePointer(1, 1);
    REQUIRE(window.comesToFront());
    text += when + '\n' + told.changes(window, awaited);
  };
  const auto close = [&](std::string_view title) {
    zub.window(title).send(WM_CLOSE);
    REQUIRE(zub.hides(title));
  };
  tell("at the start", main, "#:#");  // the clock has none before its first second
  for (const char* tab : {"Custom Plugins", "Options", "Scheduler", " Standard Plugins", "Main"}) {
    openTab(main, tab);
    tell(tab, main);
    if (tab != std::string_view(" Standard Plugins")) continue;
    main.child("Select All").tick();
    tell("all of them ticked", main);
    main.child("Select All").tick();  // as the 9x family, two of them would take the user's whole branch
  }
  icons::clickPicture(main, 5);
  main.child("Mail");
  tell("the sixth picture", main);
  main.child("Manage").click();
  tell("its cookies", zub.window(title::NSCookies));
  close(title::NSCookies);
  icons::clickPicture(main, 0);
  main.child("Downloaded Programs");
  main.child("Manage").click();
  tell("the cookies of the first", zub.window(title::IECookies));
  close(title::IECookies);
  main.child("About").click();
  tell("About", zub.window(title::About));
  close(title::About);
  openTab(main, "Custom Plugins");
  main.child("Create A New Plugin").click();
  for (const char* tab : {"Registry", "Files & Folders", "Comments"}) {
    openTab(zub.window(title::Editor), tab);
    tell(tab, zub.window(title::Editor));
  }
  close(title::Editor);
  main.child("&Preview").click();
  tell("a preview's report", zub.window(title::PreviewReport));
  close(title::PreviewReport);
  const Window progress = wash(zub);
  select(progress.child("&Finish"), 0);  // which had it only if the window came before the end
  tell("at the end of a wash", progress);
  progress.child("&View Log").click();
  tell("its report", zub.window(title::Report));
  close(title::Report);
  finish(zub);
  tell("behind the wash", main);
  checkGolden("windows.txt", text);
}

TEST_CASE("a screen reader ticks and picks in the kit's controls, and hears of it") {
  const Story story;
  const Zub zub;
  const Window cache = zub.main().child("Cache"), list = icons::list(zub.main());
  Listener listener(zub);
  press(cache);
  CHECK(listener.hears("800a Cache 0|"));
  press(list, 2);
  CHECK(listener.hears("800a  2|"));
  CHECK(select(list, 3) == 3);
  CHECK(listener.hears("8005  0|8006  3|8005  3|"));
  zub.close();
  CHECK(pc::storedOption("chkIECache") == "1");
  CHECK(pc::storedOption("chkWMP") == "1");
}

TEST_CASE("the drawn message box shows itself as was approved, and its buttons lead nowhere" *
          doctest::skip(isLaterWine())) {
  const Story story;
  const Zub program("", "show_message_box.exe");
  const Window box = program.window("Zubrone");
  Told told(program);
  movePointer(1, 1);
  checkGolden("message.txt", told.changes(box));
  box.child("&Yes").click();
  CHECK(box.isVisible());
}
