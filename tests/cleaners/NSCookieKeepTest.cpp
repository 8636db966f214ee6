#include <doctest/doctest.h>

#include "cleaners/NetscapeCookies.h"
#include "cleaners/NetscapePc.h"

using namespace zub;
using namespace std::string_literals;

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

TEST_CASE("profiles are the texts of the registry file that name a folder with cookies") {
  NetscapePc pc;
  pc.profiles();
  pc.plant({"C:\\W\\empty.slt\\", "C:\\W\\plain\\Cookies.txt", "C:\\W\\last.slt\\Cookies.txt"});
  pc.pc.file(ProfileRegistry,
             profileRegistry({"C:\\W\\empty.slt", One, "C:\\W\\plain", ".slt", "C:\\gone.slt", Two}) +
                 "C:\\W\\last.slt");
  pc.keep.Load();
  CHECK(pc.keep.NS6Exists);
  REQUIRE(pc.keep.cmbSelect.ListCount() == 2);
  CHECK(pc.keep.cmbSelect.List(0) == One);
  CHECK(pc.keep.cmbSelect.List(1) == Two);
  CHECK(pc.keep.cmbProfile.Text() == "default");
  CHECK(pc.keep.cmbProfile.List(1) == "work");
  CHECK(pc.keep.lstDelete.ListCount() == 3);
  CHECK(pc.pc.bytes(RootKeep) == "");  // written while no profile was chosen
  CHECK(pc.keep.lblKeep[1].Caption == "Select one of your Netscape profiles");

  pc.keep.cmdRefresh_Click();
  CHECK(pc.keep.cmbSelect.ListCount() == 2);
  REQUIRE(pc.keep.cmbProfile.ListCount() == 4);
  CHECK(pc.keep.cmbProfile.List(3) == "work");
  pc.keep.cmbProfile.ListIndex(3);  // no folder stands beside it
  CHECK(pc.keep.lstDelete.ListCount() == 0);
}

TEST_CASE("a PC without profiles says so for good, whatever its registry file holds") {
  for (const std::string& bytes : {"none"s, ""s, "\0"s, std::string(70000, '\0'), ".slt\0"s,
                                   "x.slt\0\n\r.slt\0*?.slt\0C:\\.slt\0\xFF\x01|<>.slt\0"s, One + "\0"s}) {
    NetscapePc pc;
    if (bytes != "none") pc.pc.file(ProfileRegistry, bytes);
    pc.keep.Load();
    CHECK(!pc.keep.NS6Exists);
    CHECK(pc.keep.cmbSelect.ListCount() == 0);
    CHECK(pc.keep.lblKeep[1].Caption == "Cannot find a copy of Netscape 6.x");

    pc.profiles();
    pc.keep.cmdRefresh_Click();
    CHECK(pc.keep.NS6Exists);
    CHECK(pc.keep.cmbSelect.ListCount() == 2);
    CHECK(!pc.keep.cmbProfile.Enabled);
  }
  NetscapePc pc;
  pc.pc.folder("C:\\W\\Mozilla");
  pc.keep.Load();
  CHECK(pc.pc.bytes(ProfileRegistry) == "");  // a missing file comes into being
}

TEST_CASE("cookie rows are the lines with a tab that are no comments") {
  NetscapePc pc;
  pc.profiles();
  pc.pc.file(One + "\\Cookies.txt",
             "# comment\twith tab\n  # too\tx\n\n   \nno tab\n.a.example\tx\r\n\tstart\n" +
                 cookieLine("b.example", " n", "v") + "unended\tx");
  pc.keep.Show();
  REQUIRE(pc.keep.lstDelete.ListCount() == 3);
  CHECK(pc.keep.lstDelete.List(0) == ".a.example\t");
  CHECK(pc.keep.lstCookies.List(0) == ".a.example\tx\r");
  CHECK(pc.keep.lstDelete.List(1) == "\t");
  pc.keep.lstDelete.ListIndex(2);
  CHECK(pc.keep.txtKeep.Text == " n\t\r\nv");
  pc.keep.lstDelete.Selected(2, true);
  pc.keep.SaveNS6(One);
  CHECK(pc.kept(One) == "b.example\tn\t\r\n");
}

TEST_CASE("ticks belong to the profile and come back with it") {
  NetscapePc pc;
  pc.profiles();
  pc.keep.Show();
  pc.keep.lstDelete.Selected(1, true);
  pc.keep.lstDelete.Selected(2, true);
  pc.keep.cmbProfile.ListIndex(1);
  CHECK(pc.kept(One) == ".shop.example\tlogin\t\r\nnews.example\ta,b\t\r\n");
  CHECK(pc.ticks() == "---");
  pc.keep.lstDelete.Selected(0, true);
  pc.keep.lstDelete.ListIndex(0);
  pc.keep.cmbProfile.ListIndex(0);
  CHECK(pc.kept(Two) == ".shop.example\tbasket\t\r\n");
  CHECK(pc.ticks() == "-*-");  // a name with a comma is read as two
  CHECK(pc.keep.txtKeep.Text == "");
  pc.keep.cmdOK_Click();
  CHECK(!pc.keep.form.Visible);

  pc.keep.chkSelectAll.Value(1);
  CHECK(pc.ticks() == "***");
  pc.keep.chkSelectAll.Value(0);
  pc.keep.SelectNS6(Two + "\\");
  CHECK(pc.ticks() == "*--");
}

TEST_CASE("a keep field ticks the rows of its domain and name, whatever else the file holds") {
  const struct {
    std::string bytes;
    std::string ticks;
  } cases[] = {
      {".shop.example\tbasket\t\r\n", "*--"},
      {"x,.shop.example\tlogin\t,y\n.shop.example\tbasket\t", "**-"},
      {".SHOP.example\tlogin\t\r\n", "---"},
      {".shop.example\tlogin\r\n", "---"},
      {" .shop.example\tlogin\t\r\n", "---"},
      {"\".shop.example\tlogin\t\"\r\n", "---"},
      {".shop.example\t\r\n,,,\t\t\t\n\0\xFF"s, "---"},
  };
  for (const auto& c : cases) {
    CAPTURE(c.bytes);
    NetscapePc pc;
    pc.profiles();
    pc.keepFile(One, c.bytes);
    pc.keep.Load();
    CHECK(pc.ticks() == c.ticks);
  }
}

TEST_CASE("files that cannot be opened leave the lists as they are and end silently") {
  NetscapePc pc;
  pc.profiles();
  pc.keep.Load();
  pc.keep.chkSelectAll.Value(1);
  pc.pc.lock(One + "\\ZUBKeepNS6.inf");
  pc.pc.lock(One + "\\Cookies.txt");
  const std::string before = pc.cookies(One);
  pc.keep.SaveNS6(One);
  pc.keep.CleanCookieNS6(One);
  CHECK(pc.cookies(One) == before);
  CHECK(pc.ticks() == "***");
  pc.keep.cmbProfile.ListIndex(0);
  CHECK(pc.ticks() == "");
}

TEST_CASE("what could not be read is not written over") {
  for (const char* file : {"\\Cookies.txt", "\\ZUBKeepNS6.inf"}) {
    NetscapePc pc;
    pc.profiles();
    for (const std::string& profile : {One, Two}) pc.keepFile(profile, ".shop.example\tlogin\t\r\n");
    pc.options.chkNSCookies.Value(1);
    pc.keep.Load();
    const std::string before = pc.cookies(Two);
    pc.pc.fail("read " + Two + file, ErrorNumber::DeviceIo);
    pc.keep.CleanNS6();
    CHECK(pc.cookies(One) == Login);
    CHECK(pc.cookies(Two) == before);
    for (const std::string& profile : {One, Two}) CHECK(pc.kept(profile) == ".shop.example\tlogin\t\r\n");
    CHECK(pc.engine.leftBehind.size() == 1);
  }
}
