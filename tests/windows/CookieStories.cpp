// A cookie of each browser that a person keeps.
#include <fstream>

#include "cleaners/BrowserFiles.h"
#include "windows/Story.h"

using namespace zub;
using namespace zub::drive;

TEST_CASE("the cookies that are kept outlive the wash, of either browser") {
  const Story story;
  for (const char* chosen : {"chkIE", "chkIECookies", "chkNetscape", "chkNSCookie"}) pc::option(chosen);
  const pc::fs::path folder = pc::cookies();
  const pc::fs::path kept = folder / "ann@shop[1].txt", gone = folder / "ann@ads[1].txt";
  pc::put(kept, "basket\nfull\nshop.example/\n");
  pc::put(gone, "id\n4711\nads.example/\n");
  pc::put(folder / "index.dat", indexFile({cookieRecord("ann", "shop.example/", kept.filename().string()),
                                           cookieRecord("ann", "ads.example/", gone.filename().string())}));
  const std::fstream held(folder / "index.dat");  // as the shell has it all the session
  REQUIRE(held.is_open());
  const pc::fs::path profile = pc::appData() / "Mozilla" / "Profiles" / "ann" / "abc.slt";
  const std::string line = cookieLine("shop.example", "basket", "full");
  pc::put(profile / "Cookies.txt", "# cookies\n" + cookieLine("ads.example", "id", "4711") + line);
  pc::put(pc::appData() / "Mozilla" / "Registry.dat", profileRegistry({profile.string()}));

  const Zub zub;
  const Window main = zub.main();
  const auto opened = [&](std::string_view title) {
    main.child("Manage").click();
    return zub.window(title);
  };
  Window keep = opened(title::IECookies);
  Window list = keep.child("SysListView32", 0);
  const int row = rows::find(list, "http://shop.example/ ");
  CHECK(rows::count(list) == 2);
  rows::clickCheck(list, row);
  rows::click(list, row);
  CHECK(keep.child("EDIT", 0).comesToSay("basket\r\nfull"));
  keep.child("&Ok").click();
  CHECK(zub.hides(title::IECookies));
  CHECK(pc::bytesOf(folder / "ZUBKeep.inf") == "http://shop.example/ \r\n");

  icons::clickPicture(main, 5);
  main.child("Mail");  // the choices of Netscape have come
  keep = opened(title::NSCookies);
  CHECK(keep.child("COMBOBOX", 0).comesToSay("ann"));
  list = keep.child("SysListView32", 0);
  rows::clickCheck(list, rows::find(list, "shop.example"));
  keep.child("&Ok").click();
  CHECK(zub.hides(title::NSCookies));

  wash(zub);
  CHECK(pc::exists(kept));
  CHECK_FALSE(pc::exists(gone));
  CHECK(pc::bytesOf(profile / "Cookies.txt") == line);
}
