#include <doctest/doctest.h>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanIE.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/Golden.h"
#include "support/Story.h"
#include "support/WashFixture.h"

using namespace zub;
using namespace std::string_literals;

namespace {

const std::string Cookies = "C:\\WINDOWS\\Cookies\\";
using Files = std::initializer_list<std::pair<std::string, std::string>>;

struct CookiePc : WashFixture {
  frmIECookieKeep keep{engine};

  // A fresh PC with these files in its folder of cookies, whose window goes on with the story.
  CookiePc(Story& story, std::initializer_list<const char*> cookies, std::vector<std::string> facts = {})
      : WashFixture(std::move(facts)) {
    pc.hide(Cookies + "hidden.txt");
    pc.shellFolder("Cookies", "C:\\WINDOWS\\Cookies");
    for (const char* name : cookies) cookie(name);
    for (const char* decoy : {"hidden.txt", "note.doc", "Sub\\deep.txt"}) cookie(decoy);
    story.look = [this] { return shown(); };
    story.settle();
  }
  void cookie(std::string_view name, std::string_view bytes = "x") {
    pc.file(Cookies + std::string(name), bytes);
  }
  Story::Things shown() {
    std::string rows, left;
    for (int row = 0; row < keep.lstDelete.ListCount(); ++row) {
      rows += (keep.lstDelete.Selected(row) ? "*[" : "[") + keep.lstDelete.List(row) + "|" +
              keep.lstFiles.List(row) + "]";
    }
    for (const LeftBehind& each : engine.leftBehind) left += each.what + ": " + each.why;
    const bool index = pc.hasFile(Cookies + "index.dat"), list = pc.hasFile(Cookies + "ZUBKeep.inf");
    return {{"window", keep.form.Visible ? "shown " + std::to_string(keep.form.shown) : "hidden"},
            {"g_strPath", keep.g_strPath},
            {"rows", rows},
            {"txtKeep", keep.txtKeep.Text},
            {"all read", keep.allRead ? "yes" : "no"},
            {"index.dat", index ? std::to_string(pc.bytes(Cookies + "index.dat").size()) + " bytes" : "none"},
            {"ZUBKeep.inf", list ? "[" + pc.bytes(Cookies + "ZUBKeep.inf") + "]" : "none"},
            {"left behind", left}};
  }
};

}  // namespace

TEST_CASE("a record puts its site beside the cookie file that it names") {
  const std::string file = "me@shop[1].txt";
  const std::string url = cookieRecord("me", "shop.example/", file);
  const std::string longest(141, 's');
  const struct {
    std::string what;
    std::string records;
  } cases[] = {
      {"a cookie", url},
      {"left over", indexRecord("LEAK", url.substr(97))},
      {"another tag", indexRecord("REDR", url.substr(97))},
      {"other case", cookieRecord("me", "shop.example/", "ME@Shop[1].TXT")},
      {"the first of two records wins", url + cookieRecord("me", "late.example/", file)},
      {"no @ before the name", indexRecord("URL ", "Visited:shop\0plain.txt\0"s)},
      {"bytes that are no text",
       indexRecord("URL ", "\1\2x\xF0\r me@!sh\x80\x7Fop~/\0\0me@shop[1].txt\0\r\xF0\xAD"s)},
      {"a text that fills the record", indexRecord("URL ", "me@" + longest + "\0"s + file)},
      {"names of other files",
       cookieRecord("me", "up/", "..\\me@shop[1].txt") + cookieRecord("me", "root/", "C:\\me@shop[1].txt") +
           cookieRecord("me", "sub/", "Sub\\deep.txt") + cookieRecord("me", "all/", "*.txt") +
           cookieRecord("me", "doc/", "note.doc") + cookieRecord("me", "hidden/", "hidden.txt")},
      {"off the walk by half a chunk", std::string(128, '\0') + url},
      {"a longer record before it", indexRecord("URL ", "x") + std::string(256, 'y') + url},
      {"the file cut off behind the name", url.substr(0, 150)},
      {"the file cut off within the name", url.substr(0, 125)},
      {"rows in the order of the records, the others behind them by name",
       cookieRecord("me", "gone/", "gone.txt") + cookieRecord("me", "last/", file) +
           cookieRecord("me", "b/", "b.txt")},
  };
  Story story;
  for (const auto& c : cases) {
    CookiePc pc(story, {file.c_str(), "plain.txt", "c.txt", "b.txt"});
    pc.cookie("index.dat", indexFile({c.records}));
    story.settle();
    story.step(c.what, [&] { pc.keep.LoadCookies(); });
  }
  checkGolden("ie-index.txt", story.text);
}

TEST_CASE("what the keep list of Internet Explorer shows and saves, step by step") {
  Story story;
  story.text = "# What a keep line ticks\n";
  const auto load = [&](CookiePc& pc) { story.step("LoadCookies", [&] { pc.keep.LoadCookies(); }); };
  for (const std::string& lines :
       {"http://shop.example/ \r\n"s, "  HTTP://Shop.Example/"s, "http://other/ \r\n\r\n\r\nBARE.TXT"s,
        "http://shop.example"s, "\0\1\xFF\x1A\r\r\n\n"s, ""s}) {
    CookiePc pc(story, {"shop.txt", "bare.txt"});
    pc.cookie("index.dat", indexFile({cookieRecord("me", "shop.example/", "shop.txt")}));
    pc.cookie("ZUBKeep.inf", lines);
    load(pc);
  }
  {
    CookiePc pc(story, {"a.txt", "b.txt", "c.txt"});
    story.chapter("Saved ticks come back, unsaved ones are lost by a refresh");
    pc.cookie("index.dat", indexFile({cookieRecord("me", "see/", "c.txt")}));
    story.step("Show", [&] { pc.keep.Show(); });
    story.step("chkSelectAll on", [&] { pc.keep.chkSelectAll.Value(1); });
    story.step("the second row unticked", [&] { pc.keep.lstDelete.Selected(1, false); });
    story.step("cmdOK", [&] { pc.keep.cmdOK_Click(); });
    pc.cookie("new.txt");
    story.step("Show: the lists are those of the first load", [&] { pc.keep.Show(); });
    story.step("chkSelectAll off", [&] { pc.keep.chkSelectAll.Value(0); });
    story.step("cmdRefresh", [&] { pc.keep.cmdRefresh_Click(); });
    pc.pc.lock(Cookies + "ZUBKeep.inf");
    story.step("cmdOK where the keep file cannot be written", [&] { pc.keep.cmdOK_Click(); });
  }
  {
    CookiePc pc(story, {});
    story.chapter("A click shows the lines of the cookie that a line feed ends");
    pc.cookie("a.txt", "name\nvalue\n\n\nsite/\r\n*\ntail");
    load(pc);
    story.step("a click", [&] { pc.keep.lstDelete.ListIndex(0); });
    pc.pc.lock(Cookies + "a.txt");
    story.step("a click, and another program holds the cookie", [&] { pc.keep.lstDelete.ListIndex(0); });
  }
  {
    CookiePc pc(story, {"a.txt"});
    story.chapter("What could not be read is not written over, and no cookie is removed by it");
    pc.cookie("ZUBKeep.inf", "a.txt\r\n");
    story.step("Show", [&] { pc.keep.Show(); });
    pc.pc.fail("read " + Cookies + "ZUBKeep.inf", ErrorNumber::DeviceIo);
    story.step("cmdRefresh", [&] { pc.keep.cmdRefresh_Click(); });
    story.step("cmdOK", [&] { pc.keep.cmdOK_Click(); });
    pc.options.chkIECookies.Value(1);
    story.step("a wash", [&] { CleanIE(pc.engine, pc.keep); });
    CHECK(pc.pc.hasFile(Cookies + "a.txt"));
    pc.pc.lock(Cookies + "index.dat");
    load(pc);
    pc.pc.shellFolder("Cookies", "C:\\Nowhere");
    load(pc);
    CHECK_FALSE(pc.pc.hasFolder("C:\\Nowhere"));
  }
  CookiePc pc(story, {"a.txt"}, {"read only = C"});
  story.chapter("Cookies of a disk that cannot be written are listed");
  load(pc);
  checkGolden("ie-cookies.txt", story.text);
}
