// Whatever a Netscape cookie file holds: with all rows ticked the file that is written anew reads the same.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "cleaners/BrowserFiles.h"
#include "cleaners/frmNSCookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

struct CookiePc : WashFixture {
  frmNSCookieKeep keep{engine};

  CookiePc() {
    pc.shellFolder("AppData", "C:\\W");
    pc.file("C:\\W\\Mozilla\\Registry.dat", profileRegistry({"C:\\P\\a.slt"}));
  }
  std::vector<std::string> cookies() const {
    std::vector<std::string> lines;
    for (int row = 0; row < keep.lstCookies.ListCount(); ++row) lines.push_back(keep.lstCookies.List(row));
    return lines;
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static CookiePc pc;
  pc.pc.file("C:\\P\\a.slt\\Cookies.txt", {reinterpret_cast<const char*>(data), size});
  pc.keep.Load();
  pc.keep.cmbProfile.ListIndex(0);
  const auto before = pc.cookies();
  if (pc.keep.lstDelete.ListCount() != static_cast<int>(before.size())) __builtin_trap();
  pc.keep.chkSelectAll.Value(1);
  for (int row = 0; row < pc.keep.lstDelete.ListCount(); ++row) pc.keep.lstDelete.ListIndex(row);
  pc.keep.CleanCookieNS6("C:\\P\\a.slt");
  pc.keep.cmbProfile.ListIndex(0);
  if (pc.cookies() != before) __builtin_trap();
  return 0;
}
