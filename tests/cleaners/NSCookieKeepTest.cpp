#include <doctest/doctest.h>

#include "cleaners/NetscapeCookies.h"
#include "cleaners/NetscapePc.h"
#include "support/Golden.h"
#include "support/Story.h"

using namespace zub;
using namespace std::string_literals;

namespace {

struct ToldPc : NetscapePc {
  Story& story;

  explicit ToldPc(Story& told) : story(told) {
    story.look = [this] { return shown(); };
    story.settle();
  }
  Story::Things shown() {
    std::string rows, left;
    for (int row = 0; row < keep.lstDelete.ListCount(); ++row) {
      rows += (keep.lstDelete.Selected(row) ? "*[" : "[") + keep.lstDelete.List(row) + "|" +
              keep.lstCookies.List(row) + "]";
    }
    const auto listed = [](const Combo& combo) {
      std::string all;
      for (int row = 0; row < combo.ListCount(); ++row)
        all += (row == combo.ListIndex() ? ">" : "") + combo.List(row) + "; ";
      return all;
    };
    for (const LeftBehind& each : engine.leftBehind) left += each.what + ": " + each.why + "; ";
    Story::Things things{
        {"window", keep.form.Visible ? "shown" : "hidden"},
        {"cmbProfile", listed(keep.cmbProfile) + (keep.cmbProfile.Enabled ? "" : "disabled")},
        {"cmbSelect", listed(keep.cmbSelect)},
        {"NS6Exists", keep.NS6Exists ? "true" : "false"},
        {"lblKeep(1)", keep.lblKeep[1].Caption},
        {"rows", rows},
        {"txtKeep", keep.txtKeep.Text},
        {"left behind", left}};
    for (const auto& file : {ProfileRegistry, "C:\\ZUBKeepNS6.inf"s, One + "\\ZUBKeepNS6.inf",
                             Two + "\\ZUBKeepNS6.inf", One + "\\Cookies.txt", Two + "\\Cookies.txt"}) {
      things.emplace_back(file, pc.hasFile(file) ? "[" + pc.bytes(file) + "]" : "none");
    }
    return things;
  }
  template <class Action>
  void step(std::string_view what, Action action) {
    story.step(what, action);
  }
  void profile(int row) {
    step("profile " + std::to_string(row), [&] { keep.cmbProfile.ListIndex(row); });
  }
  void tick(int row) {
    step("row " + std::to_string(row) + " ticked", [&] { keep.lstDelete.Selected(row, true); });
  }
  void show() {
    step("Show", [&] { keep.Show(); });
  }
};

}  // namespace

TEST_CASE("name and value stand behind the expiry, as far as the fields before it are short") {
  const struct {
    std::string line;
    std::string name;
    std::string value;
  } cases[] = {
      {"a.example\tTRUE\t/\tFALSE\t1023456789\tname\tva\tlue\r", "name\t", "va\tlue\r"},
      // The tab before the expiry is the 23rd character from the domain on, and the 24th.
      {"a.example\tTRUE\t/eight/890\tFALSE\t1023456789\tname\tvalue", "name\t", "value"},
      {"a.example\tTRUE\t/eight/8901\tFALSE\t1023456789\tname\tvalue", "1023456789\t", "name\tvalue"},
      {"a.example\tTRUE\t/a/much/longer/path\tFALSE\t1\tname\tvalue", "FALSE\t", "1\tname\tvalue"},
      {"a.example\tTRUE\t/", "\t", "TRUE\t/"},
      {"a.example\tTRUE\t/\tFALSE\t1023456789\tname", "", "name"},
      {"\t", "\t", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(c.line);
    CHECK(nameAndValue(c.line).name == c.name);
    CHECK(nameAndValue(c.line).value == c.value);
  }
}

TEST_CASE("what the keep list of Netscape shows and saves, step by step") {
  Story story;
  {
    ToldPc pc(story);
    story.chapter("Profiles are the texts of the registry file that name a folder with cookies");
    pc.profiles();
    pc.pc.folder("C:\\W\\empty.slt");
    for (const char* cookies : {"C:\\W\\plain\\Cookies.txt", "C:\\W\\last.slt\\Cookies.txt"})
      pc.pc.file(cookies);
    pc.pc.file(ProfileRegistry,
               profileRegistry({"C:\\W\\empty.slt", One, "C:\\W\\plain", ".slt", "C:\\gone.slt", Two}) +
                   "C:\\W\\last.slt");
    pc.show();
    pc.step("cmdRefresh", [&] { pc.keep.cmdRefresh_Click(); });
    pc.profile(3);
  }
  {
    ToldPc pc(story);
    story.chapter("Ticks belong to the profile and come back with it; a name with a comma is read as two");
    pc.profiles();
    pc.show();
    pc.tick(1);
    pc.tick(2);
    pc.profile(1);
    pc.tick(0);
    pc.step("a click on the row", [&] { pc.keep.lstDelete.ListIndex(0); });
    pc.profile(0);
    pc.step("cmdOK", [&] { pc.keep.cmdOK_Click(); });
    pc.step("chkSelectAll on", [&] { pc.keep.chkSelectAll.Value(1); });
    pc.step("chkSelectAll off", [&] { pc.keep.chkSelectAll.Value(0); });
    pc.step("SelectNS6 of a folder with a backslash", [&] { pc.keep.SelectNS6(Two + "\\"); });
    pc.options.chkNSCookies.Value(1);
    pc.tick(1);
    pc.step("a wash takes the ticks on screen", [&] { pc.keep.CleanNS6(); });
  }
  {
    ToldPc pc(story);
    story.chapter("Rows are the lines with a tab that are no comments");
    pc.profiles();
    pc.pc.file(One + "\\Cookies.txt",
               "# comment\twith tab\n  # too\tx\n\n   \nno tab\n.a.example\tx\r\n\tstart\n" +
                   cookieLine("b.example", " n", "v") + "unended\tx");
    pc.show();
    pc.step("a click on the last row", [&] { pc.keep.lstDelete.ListIndex(2); });
    pc.tick(2);
    pc.step("SaveNS6", [&] { pc.keep.SaveNS6(One); });
  }
  story.text += "\n# What a keep file ticks\n";
  for (const std::string& bytes :
       {".shop.example\tbasket\t\r\n"s, "x,.shop.example\tlogin\t,y\n.shop.example\tbasket\t"s,
        ".SHOP.example\tlogin\t\r\n"s, ".shop.example\tlogin\r\n"s, " .shop.example\tlogin\t\r\n"s,
        "\".shop.example\tlogin\t\"\r\n"s, ".shop.example\t\r\n,,,\t\t\t\n\0\xFF"s}) {
    ToldPc pc(story);
    pc.profiles();
    pc.keep.Load();
    story.settle();
    pc.keepFile(One, bytes);
    pc.step("SelectNS6", [&] { pc.keep.SelectNS6(One); });
  }
  {
    ToldPc pc(story);
    story.chapter("Files that cannot be opened leave the lists as they are");
    pc.profiles();
    pc.keep.Load();
    pc.keep.chkSelectAll.Value(1);
    story.settle();
    for (const char* file : {"\\ZUBKeepNS6.inf", "\\Cookies.txt"}) pc.pc.lock(One + file);
    pc.step("SaveNS6", [&] { pc.keep.SaveNS6(One); });
    pc.step("CleanCookieNS6", [&] { pc.keep.CleanCookieNS6(One); });
    pc.profile(0);
  }
  for (const char* file : {"\\Cookies.txt", "\\ZUBKeepNS6.inf"}) {
    ToldPc pc(story);
    story.chapter("What could not be read is not written over: " + std::string(file));
    pc.profiles();
    for (const std::string& profile : {One, Two}) pc.keepFile(profile, ".shop.example\tlogin\t\r\n");
    pc.options.chkNSCookies.Value(1);
    pc.keep.Load();
    pc.pc.fail("read " + Two + file, ErrorNumber::DeviceIo);
    story.settle();
    pc.step("a wash", [&] { pc.keep.CleanNS6(); });
  }
  checkGolden("netscape-cookies.txt", story.text);
}

TEST_CASE("a PC without profiles says so for good, whatever its registry file holds") {
  for (const std::string& bytes : {"none"s, ""s, "\0"s, std::string(70000, '\0'), ".slt\0"s,
                                   "x.slt\0\n\r.slt\0*?.slt\0C:\\.slt\0\xFF\x01|<>.slt\0"s, One + "\0"s}) {
    NetscapePc pc;
    if (bytes != "none") pc.pc.file(ProfileRegistry, bytes);
    if (bytes == "none") pc.pc.folder("C:\\W\\Mozilla");
    pc.keep.Load();
    CHECK_FALSE(pc.keep.NS6Exists);
    CHECK(pc.pc.bytes(ProfileRegistry) == (bytes == "none" ? "" : bytes));  // a missing file comes into being
    CHECK(pc.keep.lblKeep[1].Caption == "Cannot find a copy of Netscape 6.x");
    pc.profiles();
    pc.keep.cmdRefresh_Click();
    CHECK(pc.keep.NS6Exists);
    CHECK(pc.keep.cmbSelect.ListCount() == 2);
    CHECK_FALSE(pc.keep.cmbProfile.Enabled);
  }
}
