#include <doctest/doctest.h>

#include "base/Text.h"
#include "cleaners/BrowserFiles.h"
#include "cleaners/UnclaimedFiles.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;
using namespace std::string_literals;

namespace {

const std::string Cookies = "C:\\WINDOWS\\Cookies";

struct CookiePc : WashFixture {
  frmIECookieKeep keep{engine};

  CookiePc() {
    pc.shellFolder("Cookies", Cookies);
    pc.folder(Cookies);
  }
  void cookie(std::string_view name, std::string_view bytes = "x") {
    pc.file(Cookies + "\\" + std::string(name), bytes);
  }
  // One line per row: shown text, file, and "*" where it is kept.
  std::string rows() const {
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
  struct Case {
    std::string what;
    std::string records;
    std::string row;
  };
  const std::string file = "me@shop[1].txt";
  const std::string url = cookieRecord("me", "shop.example/", file);
  const Case cases[] = {
      {"a cookie", url, "[http://shop.example/ |me@shop[1].txt ]\n"},
      {"left over", indexRecord("LEAK", url.substr(97)), "[http://shop.example/ |me@shop[1].txt ]\n"},
      {"another tag", indexRecord("REDR", url.substr(97)), "[me@shop[1].txt|me@shop[1].txt]\n"},
      {"other case", cookieRecord("me", "shop.example/", "ME@Shop[1].TXT"),
       "[http://shop.example/ |ME@Shop[1].TXT ]\n"},
      {"the first of two records wins", url + cookieRecord("me", "late.example/", file),
       "[http://shop.example/ |me@shop[1].txt ]\n"},
      {"no @ before the name", indexRecord("URL ", "Visited:shop\0plain.txt\0"s),
       "[http://Visited:shop |plain.txt ]\n[me@shop[1].txt|me@shop[1].txt]\n"},
      {"bytes that are no text",
       indexRecord("URL ", "\1\2x\xF0\r me@sh\x80op/\0\0me@shop[1].txt\0\r\xF0\xAD"s),
       "[http://shop/ |me@shop[1].txt ]\n"},
      {"off the walk by half a chunk", std::string(128, '\0') + url, "[me@shop[1].txt|me@shop[1].txt]\n"},
      {"a longer record before it", indexRecord("URL ", "x") + std::string(256, 'y') + url,
       "[http://shop.example/ |me@shop[1].txt ]\n"},
      {"the file cut off behind the name", url.substr(0, 150), "[http://shop.example/ |me@shop[1].txt ]\n"},
      {"the file cut off within the name", url.substr(0, 125), "[me@shop[1].txt|me@shop[1].txt]\n"},
      {"a path", cookieRecord("me", "shop.example/", "..\\me@shop[1].txt"),
       "[me@shop[1].txt|me@shop[1].txt]\n"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CookiePc pc;
    pc.cookie(file);
    if (contains(c.row, "plain.txt")) pc.cookie("plain.txt");
    pc.cookie("index.dat", indexFile({c.records}));
    pc.keep.LoadCookies();
    CHECK(pc.rows() == c.row);
  }
}

TEST_CASE("indexed cookies come in the order of their records, the others after them by name") {
  CookiePc pc;
  for (const char* name : {"c.txt", "a.txt", "d.txt", "b.txt", "note.doc"}) pc.cookie(name);
  pc.cookie("index.dat",
            indexFile({cookieRecord("me", "four/", "d.txt"), cookieRecord("me", "gone/", "gone.txt"),
                       cookieRecord("me", "two/", "b.txt")}));
  pc.keep.LoadCookies();
  CHECK(pc.keep.g_strPath == Cookies + "\\");
  CHECK(pc.rows() == "[http://four/ |d.txt ]\n[http://two/ |b.txt ]\n[a.txt|a.txt]\n[c.txt|c.txt]\n");
}

TEST_CASE("of files whose names differ in case alone the first is claimed first") {
  CookiePc pc;
  const std::vector<std::string> names{"b.txt", "A.txt", "a.txt", "a.TXT"};
  UnclaimedFiles files(pc.engine.pc.codePage, names);
  const auto left = [&] {
    std::string text;
    files.forEach([&](const std::string& name) { text += name + " "; });
    return text;
  };
  CHECK(!files.claim("c.txt"));
  CHECK(files.claim("a.txt"));
  CHECK(left() == "b.txt a.txt a.TXT ");
  CHECK(files.claim("a.TXT"));
  CHECK(files.claim("A.TXT"));
  CHECK(!files.claim("a.txt"));
  CHECK(left() == "b.txt ");
}

TEST_CASE("an index of any bytes gives one row for each cookie file") {
  std::string noise;
  for (std::uint32_t state = 1, i = 0; i < 9000; ++i) {
    state = state * 1664525 + 1013904223;
    noise += static_cast<char>(state >> 24U);
  }
  for (const std::string& bytes : {""s, "x"s, std::string(20481, 'U'), std::string(20480, '\0') + noise,
                                   indexFile({"URL "s, noise}), indexFile({"LEAK" + noise})}) {
    CookiePc pc;
    pc.cookie("a.txt");
    pc.cookie("b.txt");
    pc.cookie("index.dat", bytes);
    pc.keep.LoadCookies();
    CHECK(pc.rows() == "[a.txt|a.txt]\n[b.txt|b.txt]\n");
  }
}

TEST_CASE("a keep line ticks the rows that read like it") {
  struct Case {
    std::string line;
    std::string kept;
  };
  const Case cases[] = {
      {"http://shop.example/ \r\n", "http://shop.example/ "},
      {"  HTTP://Shop.Example/", "http://shop.example/ "},
      {"BARE.TXT\r\n", "bare.txt"},
      {"http://other/ \r\n\r\n\r\nbare.txt", "bare.txt"},
      {"http://shop.example", ""},
      {"\0\1\xFF\x1A\r\r\n\n"s, ""},
      {std::string(100000, 'x'), ""},
      {"", ""},
  };
  for (const Case& c : cases) {
    CAPTURE(c.line.substr(0, 60));
    CookiePc pc;
    pc.cookie("shop.txt");
    pc.cookie("bare.txt");
    pc.cookie("index.dat", indexFile({cookieRecord("me", "shop.example/", "shop.txt")}));
    pc.cookie("ZUBKeep.inf", c.line);
    pc.keep.LoadCookies();
    for (int row = 0; row < 2; ++row) {
      CHECK(pc.keep.lstDelete.Selected(row) == (pc.keep.lstDelete.List(row) == c.kept));
    }
  }
}

TEST_CASE("saved ticks come back, unsaved ones are lost by a refresh") {
  CookiePc pc;
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) pc.cookie(name);
  pc.cookie("index.dat", indexFile({cookieRecord("me", "see/", "c.txt")}));
  pc.keep.Show();
  CHECK(pc.keep.form.Visible);
  pc.keep.chkSelectAll.Value(1);
  pc.keep.lstDelete.Selected(1, false);
  pc.keep.cmdOK_Click();
  CHECK(!pc.keep.form.Visible);
  CHECK(pc.pc.bytes(Cookies + "\\ZUBKeep.inf") == "http://see/ \r\nb.txt\r\n");

  pc.keep.Show();
  pc.keep.chkSelectAll.Value(0);
  CHECK(pc.keep.lstDelete.SelCount() == 0);
  pc.keep.Unload();
  CHECK(!pc.keep.form.Visible);
  pc.keep.cmdRefresh_Click();
  CHECK(pc.rows() == "[http://see/ |c.txt ]*\n[a.txt|a.txt]\n[b.txt|b.txt]*\n");
}

TEST_CASE("a click shows the cookie's lines that a line feed ends") {
  CookiePc pc;
  pc.cookie("a.txt", "name\nvalue\n\n\nsite/\r\n*\ntail");
  pc.cookie("b.txt", "");
  pc.keep.LoadCookies();
  pc.keep.lstDelete.ListIndex(0);
  CHECK(pc.keep.txtKeep.Text == "name\r\nvalue\r\nsite/\r\r\n*\r\n");
  pc.keep.lstDelete.ListIndex(1);
  CHECK(pc.keep.txtKeep.Text == "");
  pc.keep.txtKeep.Text = "old";
  pc.pc.lock(Cookies + "\\a.txt");
  pc.keep.lstDelete.ListIndex(0);
  CHECK(pc.keep.txtKeep.Text == "");
}

TEST_CASE("a failure ends the load with the lists as far as they came") {
  CookiePc pc;
  pc.cookie("a.txt");
  pc.cookie("ZUBKeep.inf", "a.txt\r\n");
  pc.keep.LoadCookies();
  CHECK(pc.rows() == "[a.txt|a.txt]*\n");
  CHECK(pc.pc.bytes(Cookies + "\\index.dat") == "");  // came into being

  SUBCASE("a held index gives no rows") {
    pc.pc.lock(Cookies + "\\index.dat");
    pc.keep.LoadCookies();
    CHECK(pc.rows() == "");
  }
  SUBCASE("an unreadable keep file ticks nothing") {
    pc.pc.lock(Cookies + "\\ZUBKeep.inf");
    pc.keep.LoadCookies();
    CHECK(pc.rows() == "[a.txt|a.txt]\n");
  }
  SUBCASE("an absent folder gives no rows and is not made") {
    pc.pc.shellFolder("Cookies", "C:\\Nowhere");
    pc.keep.LoadCookies();
    CHECK(pc.rows() == "");
    CHECK(!pc.pc.hasFolder("C:\\Nowhere"));
  }
  SUBCASE("a keep file that cannot be written leaves the window open") {
    pc.keep.Show();
    pc.pc.lock(Cookies + "\\ZUBKeep.inf");
    pc.keep.cmdOK_Click();
    CHECK(pc.keep.form.Visible);
    CHECK(pc.pc.bytes(Cookies + "\\ZUBKeep.inf") == "a.txt\r\n");
  }
}
