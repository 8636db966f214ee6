// A cookie that a person keeps.
#include <fstream>

#include "cleaners/BrowserFiles.h"
#include "windows/Story.h"

using namespace zub;
using namespace zub::drive;

TEST_CASE("the cookies that are kept outlive the wash") {
  const Story story;
  for (const char* chosen : {"chkIE", "chkIECookies"}) pc::option(chosen);
  const pc::fs::path folder = pc::cookies();
  const pc::fs::path kept = folder / "ann@shop[1].txt", gone = folder / "ann@ads[1].txt";
  pc::put(kept, "basket\nfull\nshop.example/\n");
  pc::put(gone, "id\n4711\nads.example/\n");
  pc::put(folder / "index.dat", indexFile({cookieRecord("ann", "shop.example/", kept.filename().string()),
                                           cookieRecord("ann", "ads.example/", gone.filename().string())}));
  const std::fstream held(folder / "index.dat");  // as the shell has it all the session
  REQUIRE(held.is_open());
  const Zub zub;
  const Window main = zub.main();
  main.child("Manage").click();
  const Window keep = zub.window(title::IECookies), list = keep.child("SysListView32", 0);
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
