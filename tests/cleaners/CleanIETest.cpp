#include <doctest/doctest.h>

#include <vector>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanIE.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Head = "ZUB has cleaned IE files and registry entries, with the following results:\r\n\r\n";
const std::string TypedUrls = "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedUrls";
const std::string Settings =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";

struct IEPc : WashFixture {
  frmIECookieKeep keep{engine};

  IEPc() {
    pc.shellFolder("Cookies", "C:\\W\\Cookies");
    pc.shellFolder("Cache", "C:\\W\\Cache");
    pc.shellFolder("History", "C:\\W\\History");
    pc.file("C:\\W\\Cookies\\me@a.txt");
    pc.file("C:\\W\\Cookies\\me@b.txt");
    pc.file("C:\\W\\Cookies\\note.doc");
    pc.file("C:\\W\\Cookies\\index.dat", "");
    pc.file("C:\\W\\Cookies\\Sub\\deep.txt");
    pc.file("C:\\W\\Cache\\Content.IE5\\page.htm");
    pc.file("C:\\W\\Cache\\Content.IE5\\index.dat");
    pc.file("C:\\W\\History\\day\\page.dat");
    pc.file("C:\\W\\CacheContent.IE5\\index.dat");
    pc.file("C:\\W\\CacheContent.IE5\\other.dat");
    pc.file("C:\\W\\HistoryHistory.IE5\\index.dat");
    pc.file("C:\\WINDOWS\\Downloaded Program Files\\a.ocx");
    pc.file("C:\\WINDOWS\\Downloaded Program Files\\Sub\\b.ocx");
    pc.file("C:\\WINDOWS\\win.com");
    pc.value(TypedUrls, "url1", "http://a/");
    pc.value("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer", "Home", "x");
    for (const char* version : {"4.0", "5.0"}) {
      pc.value(Settings + version + "\\Cache\\Extensible Cache", "a", "x");
      pc.value(Settings + version + "\\Cache", "Signature", "x");
    }
  }
  std::string wash() {
    engine.clean.txtResult.clear();
    CleanIE(engine, keep);
    return engine.clean.txtResult;
  }
};

}  // namespace

TEST_CASE("each Internet Explorer option removes its own traces and nothing else") {
  struct Case {
    std::string what;
    CheckOption Options::*option;
    std::vector<std::string> gone;
    std::string report;
  };
  const Case cases[] = {
      {"cookies",
       &Options::chkIECookies,
       {"C:\\W\\Cookies\\me@a.txt", "C:\\W\\Cookies\\me@b.txt"},
       "\tCleaning Cookies\r\n\tDeleting file me@a.txt\r\n\tDeleting file me@b.txt\r\n"},
      {"cache and history",
       &Options::chkIECache,
       {"C:\\W\\Cache\\Content.IE5\\page.htm", "C:\\W\\Cache\\Content.IE5\\index.dat",
        "C:\\W\\Cache\\Content.IE5", "C:\\W\\History\\day\\page.dat", "C:\\W\\History\\day",
        Settings + "5.0\\Cache\\Extensible Cache", Settings + "4.0\\Cache\\Extensible Cache"},
       "\tDeleting History Entries\r\n\tDeleting file page.dat\r\n\tDeleting Folder day\r\n"
       "\tDeleting file index.dat\r\n\tDeleting file page.htm\r\n\tDeleting Folder Content.IE5\r\n"},
      {"index files, by names without a backslash",
       &Options::chkIEIndex,
       {"C:\\W\\CacheContent.IE5\\index.dat", "C:\\W\\HistoryHistory.IE5\\index.dat"},
       "\tDeleting INDEX.DAT\r\n\tDeleting file index.dat\r\n\tDeleting file index.dat\r\n"},
      {"typed addresses",
       &Options::chkIEAutocomplete,
       {TypedUrls},
       "\tRemoving registry entries - Typed URLs\r\n"},
      {"downloaded programs",
       &Options::chkIEProgram,
       {"C:\\WINDOWS\\Downloaded Program Files\\a.ocx", "C:\\WINDOWS\\Downloaded Program Files\\Sub\\b.ocx",
        "C:\\WINDOWS\\Downloaded Program Files\\Sub"},
       "\tDeleting file a.ocx\r\n\tDeleting file b.ocx\r\n\tDeleting Folder Sub\r\n"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    IEPc pc;
    (pc.options.*c.option).Value(1);
    const std::string before = pc.pc.snapshot();
    CHECK(pc.wash() == Head + c.report);
    const std::string removed = pc.pc.diffSince(before);
    CHECK(removed.find("+ ") == std::string::npos);
    std::size_t files = 0;
    for (const std::string& trace : c.gone) {
      CAPTURE(trace);
      CHECK(!pc.pc.hasFile(trace));
      CHECK(!pc.pc.hasFolder(trace));
      CHECK(!pc.pc.hasKey(trace));
      CHECK(removed.find(trace) != std::string::npos);
      ++files;
    }
    CHECK(files == c.gone.size());
  }
}

TEST_CASE("with all options off the task reports its heading and counts as done") {
  IEPc pc;
  const std::string before = pc.pc.snapshot();
  CHECK(pc.wash() == Head);
  CHECK(pc.pc.diffSince(before) == "");
  CHECK(pc.engine.animated->state.lblCompleted.Caption == "1");
  CHECK(pc.engine.animated->state.Image10.picture == Picture::DoneMark);
  CHECK(!pc.engine.animated->state.Label8.Bold);
  CHECK(!pc.keep.form.Visible);
}

TEST_CASE("a kept cookie survives the wash and is not reported") {
  for (const int shredder : {0, 1}) {
    IEPc pc;
    pc.options.chkIECookies.Value(1);
    pc.options.chkBleach.Value(shredder);
    pc.pc.file("C:\\W\\Cookies\\index.dat", indexFile({cookieRecord("me", "keep.example/", "me@b.txt"),
                                                       cookieRecord("me", "go.example/", "me@a.txt")}));
    pc.pc.file("C:\\W\\Cookies\\ZUBKeep.inf", "HTTP://KEEP.example/\r\n");
    const std::string verb = shredder == 1 ? "Shredding" : "Deleting";
    CHECK(pc.wash() == Head + "\tCleaning Cookies\r\n\t" + verb + " file me@a.txt \r\n");
    CHECK(pc.pc.hasFile("C:\\W\\Cookies\\me@b.txt"));
    CHECK(!pc.pc.hasFile("C:\\W\\Cookies\\me@a.txt"));
    CHECK(pc.pc.hasFile("C:\\W\\Cookies\\ZUBKeep.inf"));
    REQUIRE(pc.keep.lstDelete.ListCount() == 1);  // the lists show what is left
    CHECK(pc.keep.lstDelete.Selected(0));
    CHECK(pc.engine.TotalBytes == 1);
    CHECK(pc.engine.clean.form.mousePointer == MousePointer::Default);
  }
}

TEST_CASE("an index that names paths leads to no file outside the Cookies folder") {
  IEPc pc;
  pc.options.chkIECookies.Value(1);
  pc.pc.file("C:\\out.txt");
  pc.pc.file("C:\\W\\out.txt");
  pc.pc.file(
      "C:\\W\\Cookies\\index.dat",
      indexFile({cookieRecord("me", "a/", "..\\out.txt"), cookieRecord("me", "b/", "C:\\out.txt"),
                 cookieRecord("me", "c/", "..\\..\\out.txt"), cookieRecord("me", "d/", "Sub\\deep.txt"),
                 cookieRecord("me", "e/", "*.txt"), cookieRecord("me", "f/", "note.doc")}));
  pc.wash();
  for (const char* decoy : {"C:\\out.txt", "C:\\W\\out.txt", "C:\\W\\Cookies\\Sub\\deep.txt",
                            "C:\\W\\Cookies\\note.doc", "C:\\W\\Cookies\\index.dat"}) {
    CAPTURE(decoy);
    CHECK(pc.pc.hasFile(decoy));
  }
  CHECK(!pc.pc.hasFile("C:\\W\\Cookies\\me@a.txt"));
}

TEST_CASE("a held index file is left for the next start") {
  IEPc pc;
  pc.options.chkIEIndex.Value(1);
  pc.pc.lock("C:\\W\\CacheContent.IE5\\index.dat");
  const std::string report = pc.wash();
  CHECK(report.find("\tDelete locked file: The file C:\\W\\CacheContent.IE5\\index.dat") !=
        std::string::npos);
  CHECK(pc.pc.hasFile("C:\\W\\CacheContent.IE5\\index.dat"));
  CHECK(pc.pc.hasFile("C:\\WINDOWS\\wininit.ini"));
}

TEST_CASE("lists that are loaded anew amid a shred do not lead the wash astray") {
  IEPc pc;
  pc.options.chkIECookies.Value(1);
  pc.options.chkBleach.Value(1);
  for (const char* name : {"p.txt", "q.txt", "r.txt", "s.txt"}) {
    pc.pc.file("C:\\W\\Cookies\\" + std::string(name), std::string(4096, 'x'));
  }
  pc.pc.file("C:\\W\\Cookies\\ZUBKeep.inf", "r.txt\r\n");
  bool inside = false;
  pc.pc.onDoEvents = [&](int) {
    if (inside) return;
    inside = true;
    CleanIE(pc.engine, pc.keep);  // a whole wash comes due
    inside = false;
  };
  pc.wash();
  CHECK(pc.pc.hasFile("C:\\W\\Cookies\\r.txt"));
  for (const char* name : {"me@a.txt", "p.txt"})
    CHECK(!pc.pc.hasFile("C:\\W\\Cookies\\" + std::string(name)));
}

TEST_CASE("without shell folders nothing of the browser's is found") {
  IEPc pc;
  for (const char* folder : {"Cookies", "Cache", "History"}) pc.pc.shellFolder(folder, "");
  for (CheckOption Options::*option : {&Options::chkIECookies, &Options::chkIECache, &Options::chkIEIndex}) {
    (pc.options.*option).Value(1);
  }
  pc.wash();
  CHECK(pc.pc.hasFile("C:\\W\\Cookies\\me@a.txt"));
  CHECK(pc.pc.hasFile("C:\\W\\Cache\\Content.IE5\\page.htm"));
  CHECK(pc.pc.hasFile("C:\\W\\CacheContent.IE5\\index.dat"));
}
