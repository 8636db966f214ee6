// Whatever the keep files hold: ticks that are written out and read back are the same ticks.
#include "cleaners/BrowserFiles.h"
#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "fuzz/Fuzz.h"

namespace {

using namespace zub;

const std::string Profile = "C:\\P\\a.slt";

struct KeepPc : WashFixture {
  frmIECookieKeep ie{engine};
  frmNSCookieKeep netscape{engine};

  KeepPc() {
    pc.shellFolder("AppData", "C:\\W");
    pc.shellFolder("Cookies", "C:\\Cookies");
    pc.file("C:\\Cookies\\a.txt");
    pc.file("C:\\Cookies\\b.txt");
    pc.file("C:\\Cookies\\index.dat", indexFile({cookieRecord("me", "b/", "b.txt")}));
    pc.file("C:\\W\\Mozilla\\Registry.dat", profileRegistry({Profile}));
    pc.file(Profile + "\\Cookies.txt",
            cookieLine("a", "n", "v") + cookieLine("a", "m", "v") + cookieLine("b", "n", "v"));
    netscape.Load();
  }
  // Of Internet Explorer, a space, of Netscape.
  std::string ticks() {
    ie.LoadCookies();
    netscape.chkSelectAll.Value(0);
    netscape.SelectNS6(Profile);
    return ticksOf(ie.lstDelete) + ' ' + ticksOf(netscape.lstDelete);
  }
};

}  // namespace

void zub::fuzz(std::string_view bytes) {
  static KeepPc keep;
  keep.pc.file("C:\\Cookies\\ZUBKeep.inf", bytes);
  keep.pc.file(Profile + "\\ZUBKeepNS6.inf", bytes);
  const std::string ticks = keep.ticks();
  keep.ie.cmdOK_Click();
  keep.netscape.SaveNS6(Profile);
  require(ticks.size() == 2 + 1 + 3 && keep.ticks() == ticks);
}
