// Whatever the browser's registry of profiles holds, only folders with cookies become profiles, and a wash
// with every option changes nothing outside them but the keep file at the root.
#include <cstddef>
#include <cstdint>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanNetscape.h"
#include "cleaners/frmNSCookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

struct ProfilePc : WashFixture {
  ProfilePc() {
    pc.shellFolder("AppData", "C:\\W");
    pc.file("C:\\ZUBKeepNS6.inf", "");
    pc.file("C:\\P\\a.slt\\Cookies.txt", "");
    pc.file("C:\\Mail\\Trash");
    pc.file("C:\\Cache\\a");
    pc.file("C:\\history.dat");
    for (CheckOption Options::*option :
         {&Options::chkNSHistory, &Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail}) {
      (options.*option).Value(1);
    }
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ProfilePc pc;
  pc.pc.file("C:\\W\\Mozilla\\Registry.dat", {reinterpret_cast<const char*>(data), size});
  frmNSCookieKeep keep(pc.engine);
  CleanNetscape(pc.engine, keep);
  if (keep.cmbSelect.ListCount() != keep.cmbProfile.ListCount()) __builtin_trap();
  for (const char* decoy :
       {"C:\\Mail\\Trash", "C:\\Cache\\a", "C:\\history.dat", "C:\\P\\a.slt\\Cookies.txt"}) {
    if (!pc.pc.hasFile(decoy)) __builtin_trap();
  }
  return 0;
}
