// Whatever the keep files hold: ticks that are written out and read back are the same ticks.
#include <cstddef>
#include <cstdint>

#include "cleaners/BrowserFiles.h"
#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

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
  std::string ieTicks() {
    ie.LoadCookies();
    return ticksOf(ie.lstDelete);
  }
  std::string netscapeTicks() {
    netscape.chkSelectAll.Value(0);
    netscape.SelectNS6(Profile);
    return ticksOf(netscape.lstDelete);
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static KeepPc pc;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  pc.pc.file("C:\\Cookies\\ZUBKeep.inf", bytes);
  pc.pc.file(Profile + "\\ZUBKeepNS6.inf", bytes);
  const std::string ieTicks = pc.ieTicks();
  const std::string netscapeTicks = pc.netscapeTicks();
  pc.ie.cmdOK_Click();
  pc.netscape.SaveNS6(Profile);
  if (ieTicks.size() != 2 || pc.ieTicks() != ieTicks) __builtin_trap();
  if (netscapeTicks.size() != 3 || pc.netscapeTicks() != netscapeTicks) __builtin_trap();
  return 0;
}
