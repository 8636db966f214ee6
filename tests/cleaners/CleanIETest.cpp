#include <doctest/doctest.h>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanIE.h"
#include "cleaners/CleanerPc.h"
#include "cleaners/frmIECookieKeep.h"

using namespace zub;

namespace {

const std::string Head = "ZUB has cleaned IE files and registry entries, with the following results:\r\n\r\n";
const std::string TypedUrls = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedUrls";
const std::string Settings =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
const std::string Cookies = "C:\\W\\Cookies\\";
const std::string Programs = "C:\\WINDOWS\\Downloaded Program Files\\";

struct IEPc : CleanerPc {
  frmIECookieKeep keep{engine};

  explicit IEPc(std::initializer_list<CheckOption Options::*> chosen) {
    pc.file(Cookies + "index.dat", "");
    for (const auto option : chosen) (options.*option).Value(1);
  }
  void shellFolders() {
    for (const char* name : {"Cookies", "Cache", "History"}) {
      pc.shellFolder(name, std::string("C:\\W\\") + name);
    }
  }
  std::string wash() {
    return removedBy([this] { CleanIE(engine, keep); });
  }
};

}  // namespace

TEST_CASE("each Internet Explorer option removes its own traces and nothing else") {
  const struct {
    CheckOption Options::*option;
    Paths traces;
  } cases[] = {
      {&Options::chkIECookies, {Cookies + "me@a.txt", Cookies + "me@b.txt"}},
      {&Options::chkIECache,
       {"C:\\W\\Cache\\Content.IE5\\page.htm", "C:\\W\\Cache\\Content.IE5\\index.dat",
        "C:\\W\\Cache\\Content.IE5\\", "C:\\W\\History\\day\\page.dat", "C:\\W\\History\\day\\",
        Settings + "5.0\\Cache\\Extensible Cache", Settings + "4.0\\Cache\\Extensible Cache"}},
      // The names have no backslash behind the folder.
      {&Options::chkIEIndex, {"C:\\W\\CacheContent.IE5\\index.dat", "C:\\W\\HistoryHistory.IE5\\index.dat"}},
      {&Options::chkIEAutocomplete, {TypedUrls}},
      {&Options::chkIEProgram, {Programs + "a.ocx", Programs + "Sub\\b.ocx", Programs + "Sub\\"}},
  };
  const auto wash = [&](IEPc& pc) {
    pc.shellFolders();
    for (const auto& each : cases) pc.plant(each.traces);
    pc.plant({Cookies + "note.doc", Cookies + "Sub\\deep.txt", "C:\\W\\CacheContent.IE5\\other.dat",
              "C:\\WINDOWS\\win.com"});
    return pc.wash();
  };
  for (const auto& c : cases) {
    CAPTURE(c.traces.front());
    IEPc pc({c.option});
    CHECK(wash(pc) == listed(c.traces));
  }
  IEPc idle({});
  CHECK(wash(idle) == "");
  CHECK(idle.takeReport() == Head);
  CHECK(idle.progress().lblCompleted.Caption == "1");
}

TEST_CASE("a kept cookie survives the wash and is not reported") {
  IEPc pc({&Options::chkIECookies});
  pc.shellFolders();
  pc.plant({Cookies + "me@a.txt", Cookies + "me@b.txt"});
  pc.pc.file(Cookies + "index.dat", indexFile({cookieRecord("me", "keep.example/", "me@b.txt"),
                                               cookieRecord("me", "go.example/", "me@a.txt")}));
  pc.pc.file(Cookies + "ZUBKeep.inf", "HTTP://KEEP.example/\r\n");
  CHECK(pc.wash() == Cookies + "me@a.txt\n");
  CHECK(pc.takeReport() == Head + "\tCleaning Cookies\r\n\tDeleting file me@a.txt \r\n");
  CHECK(pc.keep.lstDelete.ListCount() == 1);  // the lists show what is left
  CHECK(pc.keep.lstDelete.Selected(0));
  CHECK(pc.engine.clean.form.mousePointer == MousePointer::Default);
}

TEST_CASE("lists that are loaded anew amid a shred do not lead the wash astray") {
  IEPc pc({&Options::chkIECookies, &Options::chkBleach});
  pc.shellFolders();
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) pc.pc.file(Cookies + name, std::string(4096, 'x'));
  pc.pc.file(Cookies + "ZUBKeep.inf", "b.txt\r\n");
  bool inside = false;
  pc.pc.onDoEvents = [&](int) {
    if (inside) return;
    inside = true;
    CleanIE(pc.engine, pc.keep);  // a whole wash comes due
    inside = false;
  };
  CHECK(pc.wash() == Cookies + "a.txt\n" + Cookies + "c.txt\n");
}

TEST_CASE(
    "without shell folders no cache is found, and the index files are looked for in the current folder") {
  IEPc pc({&Options::chkIECache, &Options::chkIEIndex});
  const Paths traces{"C:\\Content.IE5\\index.dat", "C:\\History.IE5\\index.dat"};
  pc.plant(traces);
  pc.plant({"C:\\W\\Cache\\Content.IE5\\page.htm"});
  CHECK(pc.wash() == listed(traces));
}
