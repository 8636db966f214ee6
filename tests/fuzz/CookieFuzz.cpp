// Whatever a Netscape cookie file holds: with all rows ticked the file that is written anew reads the same.
#include "cleaners/BrowserFiles.h"
#include "cleaners/frmNSCookieKeep.h"
#include "fuzz/Fuzz.h"

void zub::fuzz(std::string_view bytes) {
  static const std::string profile = "C:\\P\\a.slt";
  static struct CookiePc : WashFixture {
    CookiePc() {
      pc.shellFolder("AppData", "C:\\W");
      pc.file("C:\\W\\Mozilla\\Registry.dat", profileRegistry({profile}));
    }
  } wash;
  static frmNSCookieKeep keep{wash.engine};
  wash.pc.file(profile + "\\Cookies.txt", bytes);
  keep.Load();
  keep.cmbProfile.ListIndex(0);
  const std::string before = rowsOf(keep.lstCookies);
  require(keep.lstDelete.ListCount() == keep.lstCookies.ListCount());
  keep.chkSelectAll.Value(1);
  for (int row = 0; row < keep.lstDelete.ListCount(); ++row) keep.lstDelete.ListIndex(row);
  keep.CleanCookieNS6(profile);
  keep.cmbProfile.ListIndex(0);
  require(rowsOf(keep.lstCookies) == before);
}
