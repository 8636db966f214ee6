// A cookie of each browser that a person keeps.
#include <fstream>

#include "cleaners/BrowserFiles.h"
#include "windows/Story.h"

using namespace zub;
using namespace zub::drive;

TEST_CASE("a cookie of Internet Explorer that is kept outlives the wash") {
  const Story story;
  pc::option("chkIE");
  pc::option("chkIECookies");
  const pc::fs::path folder = pc::cookies();
  const pc::fs::path kept = folder / "ann@shop[1].txt", gone = folder / "ann@ads[1].txt";
  pc::put(kept, "basket\nfull\nshop.example/\n");
  pc::put(gone, "id\n4711\nads.example/\n");
  pc::put(folder / "index.dat", indexFile({cookieRecord("ann", "shop.example/", kept.filename().string()),
                                           cookieRecord("ann", "ads.example/", gone.filename().string())}));
  const std::fstream held(folder / "index.dat");  // as the shell has it all the session
  REQUIRE(held.is_open());
  const Zub zub;
  zub.main().child("Manage").click();
  const Window keep = zub.window(title::IECookies);
  const Window list = keep.child("SysListView32", 0);
  const int row = rows::find(list, "http://shop.example/ ");
  CHECK(rows::count(list) == 2);
  rows::clickCheck(list, row);
  rows::click(list, row);
  CHECK(keep.child("EDIT", 0).comesToSay("basket\r\nfull"));
  keep.child("&Ok").click();
  CHECK(zub.hides(title::IECookies));
  CHECK(pc::bytesOf(folder / "ZUBKeep.inf") == "http://shop.example/ \r\n");
  wash(zub);
  CHECK(pc::exists(kept));
  CHECK_FALSE(pc::exists(gone));
}

TEST_CASE("a cookie of Netscape that is kept outlives the wash") {
  const Story story;
  pc::option("chkNetscape");
  pc::option("chkNSCookie");
  const pc::fs::path folder = pc::appData() / "Mozilla" / "Profiles" / "ann" / "abc.slt";
  const std::string kept = cookieLine("shop.example", "basket", "full");
  pc::put(folder / "Cookies.txt", "# cookies\n" + cookieLine("ads.example", "id", "4711") + kept);
  pc::put(pc::appData() / "Mozilla" / "Registry.dat", profileRegistry({folder.string()}));
  const Zub zub;
  const Window main = zub.main();
  icons::clickPicture(main, 5);
  main.child("Mail");  // the choices of Netscape have come
  main.child("Manage").click();
  const Window keep = zub.window(title::NSCookies);
  CHECK(keep.child("COMBOBOX", 0).comesToSay("ann"));
  const Window list = keep.child("SysListView32", 0);
  rows::clickCheck(list, rows::find(list, "shop.example"));
  keep.child("&Ok").click();
  CHECK(zub.hides(title::NSCookies));
  wash(zub);
  CHECK(pc::bytesOf(folder / "Cookies.txt") == kept);
}
