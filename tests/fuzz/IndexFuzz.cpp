// Whatever the index of cookies holds, each cookie file has one row, and no row names anything else.
#include <set>

#include "base/Text.h"
#include "cleaners/BrowserFiles.h"
#include "cleaners/frmIECookieKeep.h"
#include "fuzz/Fuzz.h"

void zub::fuzz(std::string_view bytes) {
  static const std::set<std::string> files{"A.TXT", "ME@SHOP[1].TXT", "ME@SHOP[2].TXT"};
  static struct IndexPc : WashFixture {
    IndexPc() {
      pc.shellFolder("Cookies", "C:\\Cookies");
      for (const std::string& file : files) pc.file("C:\\Cookies\\" + file);
      pc.file("C:\\out.txt");
    }
  } wash;
  static frmIECookieKeep keep{wash.engine};
  wash.pc.file("C:\\Cookies\\index.dat", indexFile({}) + std::string(bytes));
  keep.LoadCookies();
  std::set<std::string> named;
  for (int row = 0; row < keep.lstFiles.ListCount(); ++row) {
    named.insert(wash.engine.pc.codePage->upper(trim(keep.lstFiles.List(row))));
  }
  require(named == files && keep.lstDelete.ListCount() == static_cast<int>(named.size()));
}
