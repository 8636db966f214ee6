// Whatever the index of cookies holds, each cookie file has one row, and no row names anything else.
#include <cstddef>
#include <cstdint>
#include <set>

#include "base/Text.h"
#include "cleaners/BrowserFiles.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

struct IndexPc : WashFixture {
  const std::set<std::string> files{"A.TXT", "ME@SHOP[1].TXT", "ME@SHOP[2].TXT"};
  frmIECookieKeep keep{engine};

  IndexPc() {
    pc.shellFolder("Cookies", "C:\\Cookies");
    for (const std::string& file : files) pc.file("C:\\Cookies\\" + file);
    pc.file("C:\\out.txt");
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static IndexPc pc;
  pc.pc.file("C:\\Cookies\\index.dat",
             indexFile({}) + std::string(reinterpret_cast<const char*>(data), size));
  pc.keep.LoadCookies();
  std::set<std::string> named;
  for (int row = 0; row < pc.keep.lstFiles.ListCount(); ++row) {
    named.insert(pc.engine.pc.codePage->upper(trim(pc.keep.lstFiles.List(row))));
  }
  if (named != pc.files || pc.keep.lstDelete.ListCount() != static_cast<int>(named.size())) __builtin_trap();
  return 0;
}
