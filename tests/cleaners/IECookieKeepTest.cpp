#include <doctest/doctest.h>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanIE.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;
using namespace std::string_literals;

namespace {

const std::string Cookies = "C:\\WINDOWS\\Cookies\\";

struct CookiePc : WashFixture {
  frmIECookieKeep keep{engine};

  explicit CookiePc(std::initializer_list<const char*> cookies)
      : WashFixture({"hidden = C:\\WINDOWS\\Cookies\\hidden.txt"}) {
    pc.shellFolder("Cookies", "C:\\WINDOWS\\Cookies");
    for (const char* name : cookies) cookie(name);
    for (const char* decoy : {"hidden.txt", "note.doc", "Sub\\deep.txt"}) cookie(decoy);
  }
  void cookie(std::string_view name, std::string_view bytes = "x") {
    pc.file(Cookies + std::string(name), bytes);
  }
  // What a load of the lists shows, one line per row: shown text, file, and "*" where it is kept.
  std::string rows() {
    keep.LoadCookies();
    REQUIRE(keep.lstDelete.ListCount() == keep.lstFiles.ListCount());
    std::string text;
    for (int row = 0; row < keep.lstDelete.ListCount(); ++row) {
      text += "[" + keep.lstDelete.List(row) + "|" + keep.lstFiles.List(row) + "]";
      text += keep.lstDelete.Selected(row) ? "*\n" : "\n";
    }
    return text;
  }
};

}  // namespace

TEST_CASE("a record puts its site beside the cookie file that it names") {
  const std::string file = "me@shop[1].txt";
  const std::string url = cookieRecord("me", "shop.example/", file);
  const std::string longest(141, 's');
  const std::string bare = "[me@shop[1].txt|me@shop[1].txt]\n";
  const std::string sited = "[http://shop.example/ |me@shop[1].txt ]\n";
  const struct {
    std::string what;
    std::string records;
    std::string rows;
  } cases[] = {
      {"a cookie", url, sited},
      {"left over", indexRecord("LEAK", url.substr(97)), sited},
      {"another tag", indexRecord("REDR", url.substr(97)), bare},
      {"other case", cookieRecord("me", "shop.example/", "ME@Shop[1].TXT"),
       "[http://shop.example/ |ME@Shop[1].TXT ]\n"},
      {"the first of two records wins", url + cookieRecord("me", "late.example/", file), sited},
      {"no @ before the name", indexRecord("URL ", "Visited:shop\0plain.txt\0"s),
       "[http://Visited:shop |plain.txt ]\n" + bare},
      {"bytes that are no text",
       indexRecord("URL ", "\1\2x\xF0\r me@!sh\x80\x7Fop~/\0\0me@shop[1].txt\0\r\xF0\xAD"s),
       "[http://!shop~/ |me@shop[1].txt ]\n"},
      {"a text that fills the record", indexRecord("URL ", "me@" + longest + "\0"s + file),
       "[http://" + longest + " |me@shop[1].txt]\n"},
      {"names of other files",
       cookieRecord("me", "up/", "..\\me@shop[1].txt") + cookieRecord("me", "root/", "C:\\me@shop[1].txt") +
           cookieRecord("me", "sub/", "Sub\\deep.txt") + cookieRecord("me", "all/", "*.txt") +
           cookieRecord("me", "doc/", "note.doc") + cookieRecord("me", "hidden/", "hidden.txt"),
       bare},
      {"off the walk by half a chunk", std::string(128, '\0') + url, bare},
      {"a longer record before it", indexRecord("URL ", "x") + std::string(256, 'y') + url, sited},
      {"the file cut off behind the name", url.substr(0, 150), sited},
      {"the file cut off within the name", url.substr(0, 125), bare},
  };
  for (const auto& c : cases) {
    CAPTURE(c.what);
    CookiePc pc({file.c_str()});
    if (c.what == "no @ before the name") pc.cookie("plain.txt");
    pc.cookie("index.dat", indexFile({c.records}));
    CHECK(pc.rows() == c.rows);
  }
}

TEST_CASE("indexed cookies come in the order of their records, the others after them by name") {
  CookiePc pc({"z.txt", "c.txt", "b.txt", "a.txt"});
  pc.cookie("index.dat",
            indexFile({cookieRecord("me", "gone/", "gone.txt"), cookieRecord("me", "last/", "z.txt"),
                       cookieRecord("me", "first/", "b.txt")}));
  CHECK(pc.rows() == "[http://last/ |z.txt ]\n[http://first/ |b.txt ]\n[a.txt|a.txt]\n[c.txt|c.txt]\n");
}

TEST_CASE("a keep line ticks the rows that read like it") {
  const struct {
    std::string lines;
    std::string kept;
  } cases[] = {
      {"http://shop.example/ \r\n", "http://shop.example/ "},
      {"  HTTP://Shop.Example/", "http://shop.example/ "},
      {"http://other/ \r\n\r\n\r\nBARE.TXT", "bare.txt"},
      {"http://shop.example", ""},
      {"\0\1\xFF\x1A\r\r\n\n"s, ""},
      {"", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(c.lines);
    CookiePc pc({"shop.txt", "bare.txt"});
    pc.cookie("index.dat", indexFile({cookieRecord("me", "shop.example/", "shop.txt")}));
    pc.cookie("ZUBKeep.inf", c.lines);
    pc.keep.LoadCookies();
    REQUIRE(pc.keep.lstDelete.ListCount() == 2);
    for (int row = 0; row < 2; ++row) {
      CHECK(pc.keep.lstDelete.Selected(row) == (pc.keep.lstDelete.List(row) == c.kept));
    }
  }
}

TEST_CASE("saved ticks come back, unsaved ones are lost by a refresh") {
  CookiePc pc({"a.txt", "b.txt", "c.txt"});
  pc.cookie("index.dat", indexFile({cookieRecord("me", "see/", "c.txt")}));
  pc.keep.Show();
  pc.keep.chkSelectAll.Value(1);
  pc.keep.lstDelete.Selected(1, false);
  pc.keep.cmdOK_Click();
  CHECK(!pc.keep.form.Visible);
  CHECK(pc.pc.bytes(Cookies + "ZUBKeep.inf") == "http://see/ \r\nb.txt\r\n");

  pc.keep.Show();
  pc.keep.chkSelectAll.Value(0);
  CHECK(pc.keep.lstDelete.SelCount() == 0);
  CHECK(pc.rows() == "[http://see/ |c.txt ]*\n[a.txt|a.txt]\n[b.txt|b.txt]*\n");

  pc.pc.lock(Cookies + "ZUBKeep.inf");
  pc.keep.cmdOK_Click();
  CHECK(pc.keep.form.Visible);  // what cannot be written leaves the window open
}

TEST_CASE("a click shows the cookie's lines that a line feed ends") {
  CookiePc pc({});
  pc.cookie("a.txt", "name\nvalue\n\n\nsite/\r\n*\ntail");
  pc.keep.LoadCookies();
  pc.keep.lstDelete.ListIndex(0);
  CHECK(pc.keep.txtKeep.Text == "name\r\nvalue\r\nsite/\r\r\n*\r\n");
  pc.pc.lock(Cookies + "a.txt");
  pc.keep.lstDelete.ListIndex(0);
  CHECK(pc.keep.txtKeep.Text == "");
}

TEST_CASE("a failure ends the load with the lists as far as they came") {
  CookiePc pc({"a.txt"});
  pc.cookie("ZUBKeep.inf", "a.txt\r\n");
  CHECK(pc.rows() == "[a.txt|a.txt]*\n");
  CHECK(pc.pc.bytes(Cookies + "index.dat") == "");  // came into being

  // What could not be read is not written over, and no cookie is removed by it.
  pc.keep.Show();
  pc.pc.fail("read " + Cookies + "ZUBKeep.inf", ErrorNumber::DeviceIo);
  CHECK(pc.rows() == "[a.txt|a.txt]\n");
  pc.keep.cmdOK_Click();
  CHECK(pc.keep.form.Visible);
  CHECK(pc.pc.bytes(Cookies + "ZUBKeep.inf") == "a.txt\r\n");
  pc.options.chkIECookies.Value(1);
  CleanIE(pc.engine, pc.keep);
  CHECK(pc.pc.hasFile(Cookies + "a.txt"));
  CHECK(pc.engine.leftBehind.size() == 1);

  pc.pc.lock(Cookies + "index.dat");
  CHECK(pc.rows() == "");
  pc.pc.shellFolder("Cookies", "C:\\Nowhere");
  CHECK(pc.rows() == "");
  CHECK(!pc.pc.hasFolder("C:\\Nowhere"));
}

TEST_CASE("cookies of a disk that cannot be written are listed") {
  WashFixture pc({"read only = C"});
  pc.pc.shellFolder("Cookies", "C:\\WINDOWS\\Cookies");
  pc.pc.file(Cookies + "a.txt");
  frmIECookieKeep keep(pc.engine);
  keep.LoadCookies();
  CHECK(keep.lstDelete.List(0) == "a.txt");
  CHECK(!pc.pc.hasFile(Cookies + "index.dat"));
}
