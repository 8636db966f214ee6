#include <doctest/doctest.h>

#include "cleaners/CleanIE.h"
#include "cleaners/CleanNetscape.h"
#include "cleaners/NetscapePc.h"
#include "cleaners/frmIECookieKeep.h"
#include "support/Golden.h"

using namespace zub;

namespace {

const std::string Cookies = "C:\\W\\Cookies\\";
using Option = std::pair<const char*, CheckOption Options::*>;

struct IEPc : TracedWash {
  frmIECookieKeep keep{engine};

  void shellFolders() {
    for (const char* name : {"Cookies", "Cache", "History"})
      pc.shellFolder(name, std::string("C:\\W\\") + name);
  }
  void clean() { CleanIE(engine, keep); }
};

void plant(TestPc& pc, std::initializer_list<const char*> files) {
  for (const char* file : files) pc.file(file);
}

}  // namespace

TEST_CASE("each Internet Explorer option makes its own calls, on its own traces") {
  const std::string settings =
      "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
  std::string told;
  const auto wash = [&](const Option& option, bool folders) {
    IEPc pc;
    if (folders) pc.shellFolders();
    plant(pc.pc, {"C:\\W\\Cookies\\me@a.txt", "C:\\W\\Cookies\\me@b.txt", "C:\\W\\Cookies\\note.doc",
                  "C:\\W\\Cookies\\Sub\\deep.txt", "C:\\W\\Cache\\Content.IE5\\page.htm",
                  "C:\\W\\Cache\\Content.IE5\\index.dat", "C:\\W\\History\\day\\page.dat",
                  "C:\\W\\CacheContent.IE5\\index.dat", "C:\\W\\HistoryHistory.IE5\\index.dat",
                  "C:\\Content.IE5\\index.dat", "C:\\WINDOWS\\Downloaded Program Files\\Sub\\b.ocx"});
    for (const char* version : {"5.0", "4.0"}) pc.pc.key(settings + version + "\\Cache\\Extensible Cache");
    pc.pc.key("HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedUrls");
    pc.pc.file(Cookies + "index.dat", indexFile({cookieRecord("me", "keep.example/", "me@b.txt")}));
    pc.pc.file(Cookies + "ZUBKeep.inf", "HTTP://KEEP.example/\r\n");
    if (option.second != nullptr) (pc.options.*option.second).Value(1);
    pc.trace.act(option.first, [&] { pc.clean(); });
    told += pc.trace.text + "\n";
  };
  for (const Option& option : {Option{"none", nullptr},
                               {"chkIECookies", &Options::chkIECookies},
                               {"chkIECache", &Options::chkIECache},
                               {"chkIEIndex", &Options::chkIEIndex},
                               {"chkIEAutocomplete", &Options::chkIEAutocomplete},
                               {"chkIEProgram", &Options::chkIEProgram}}) {
    wash(option, true);
  }
  wash({"chkIEIndex without shell folders", &Options::chkIEIndex}, false);
  wash({"chkIECache without shell folders", &Options::chkIECache}, false);
  checkGolden("internet-explorer.txt", told);
}

TEST_CASE("each Netscape option makes its own calls, in every profile") {
  std::string told;
  for (const Option& option : {Option{"none", nullptr},
                               {"chkNSHistory", &Options::chkNSHistory},
                               {"chkNSCookies", &Options::chkNSCookies},
                               {"chkNSCache", &Options::chkNSCache},
                               {"chkNSMail", &Options::chkNSMail}}) {
    NetscapePc pc;
    pc.profiles();
    for (const std::string& profile : {One, Two}) {
      for (const char* file :
           {"history.dat", "history.mab", "prefs.js", "Cache\\S\\b", "NewCache\\c", "Trash", "Mail\\Trash",
            "Mail\\A\\B\\TRASH", "Mail\\A\\B\\trash.MSF", "Mail\\A\\Trash.old", "Mail\\Trash.sbd\\Inbox"}) {
        pc.pc.file(profile + "\\" + file);
      }
    }
    pc.keepFile(One, ".shop.example\tlogin\t\r\n");
    pc.keepFile(Two, ".shop.example\tlogin\t\r\n.shop.example\tbasket\t\r\n");
    pc.options.chkBleach.Value(
        option.second == &Options::chkNSCookies ? 1 : 0);  // what is written anew is not shredded
    if (option.second != nullptr) (pc.options.*option.second).Value(1);
    pc.trace.act(option.first, [&] { CleanNetscape(pc.engine, pc.keep); });
    told += pc.trace.text + "\n";
    if (option.second != &Options::chkNSCookies) continue;
    CHECK(pc.cookies(One) == Login);
    CHECK(pc.cookies(Two) == Basket + Login);
    // The profile that then is chosen again takes over the ticks of the last one washed.
    CHECK(pc.kept(One) == ".shop.example\tbasket\t\r\n.shop.example\tlogin\t\r\n");
  }
  NetscapePc none;
  for (const auto option :
       {&Options::chkNSHistory, &Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail})
    (none.options.*option).Value(1);
  plant(none.pc, {"C:\\history.dat", "C:\\Cookies.txt", "C:\\Cache\\a", "C:\\Mail\\Trash"});
  none.trace.act("all of them, without a profile", [&] { CleanNetscape(none.engine, none.keep); });
  checkGolden("netscape.txt", told + none.trace.text);
}

TEST_CASE("lists that are loaded anew amid a shred do not lead the wash astray") {
  IEPc pc;
  pc.shellFolders();
  for (const auto option : {&Options::chkIECookies, &Options::chkBleach}) (pc.options.*option).Value(1);
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) pc.pc.file(Cookies + name, std::string(4096, 'x'));
  pc.pc.file(Cookies + "ZUBKeep.inf", "b.txt\r\n");
  bool inside = false;
  pc.pc.onDoEvents = [&](int) {
    if (inside) return;
    inside = true;
    pc.clean();  // a whole wash comes due
    inside = false;
  };
  pc.clean();
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) CHECK(pc.pc.hasFile(Cookies + name) == (*name == 'b'));
}

TEST_CASE("profiles that are read again amid a wash do not lead it astray") {
  NetscapePc pc;
  pc.profiles();
  for (const auto option : {&Options::chkNSCookies, &Options::chkNSCache}) (pc.options.*option).Value(1);
  for (const std::string& profile : {One, Two}) {
    for (const char* file : {"\\Cache\\a", "\\Cache\\b", "\\prefs.js"}) pc.pc.file(profile + file);
  }
  pc.keep.Show();
  pc.keep.cmbProfile.ListIndex(1);
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 1) pc.keep.cmdRefresh_Click();
    if (turn == 2) pc.keep.cmbProfile.ListIndex(3);  // a name without a folder
    if (turn == 3) pc.pc.file(ProfileRegistry, "");
    if (turn == 4) pc.keep.cmdRefresh_Click();
  };
  CleanNetscape(pc.engine, pc.keep);
  CHECK(pc.keep.cmbProfile.ListIndex() == 1);
  CHECK_FALSE(pc.pc.hasFile(One + "\\Cache\\a"));
  for (const std::string& profile : {One, Two}) CHECK(pc.pc.hasFile(profile + "\\prefs.js"));
}
