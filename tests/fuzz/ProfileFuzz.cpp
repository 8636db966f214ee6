// Whatever the browser's registry of profiles holds, only folders with cookies become profiles, and a wash
// with every option changes nothing outside them but the keep file at the root.
#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanNetscape.h"
#include "cleaners/frmNSCookieKeep.h"
#include "fuzz/Fuzz.h"

void zub::fuzz(std::string_view bytes) {
  static constexpr const char* decoys[] = {"C:\\Mail\\Trash", "C:\\Cache\\a", "C:\\history.dat",
                                           "C:\\P\\a.slt\\Cookies.txt"};
  static struct ProfilePc : WashFixture {
    ProfilePc() {
      pc.shellFolder("AppData", "C:\\W");
      pc.file("C:\\ZUBKeepNS6.inf", "");
      for (const char* decoy : decoys) pc.file(decoy);
      for (auto option :
           {&Options::chkNSHistory, &Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail}) {
        (options.*option).Value(1);
      }
    }
  } wash;
  wash.pc.file("C:\\W\\Mozilla\\Registry.dat", bytes);
  frmNSCookieKeep keep(wash.engine);
  CleanNetscape(wash.engine, keep);
  require(keep.cmbSelect.ListCount() == keep.cmbProfile.ListCount());
  for (const char* decoy : decoys) require(wash.pc.hasFile(decoy));
}
