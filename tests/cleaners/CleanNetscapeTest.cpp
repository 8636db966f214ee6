#include <doctest/doctest.h>

#include <vector>

#include "cleaners/BrowserFiles.h"
#include "cleaners/CleanNetscape.h"
#include "cleaners/frmNSCookieKeep.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Head =
    "ZUB has cleaned Netscape files ans registry entries, with the following results:\r\n";
const std::string One = "C:\\W\\Mozilla\\Profiles\\default\\abcd.slt";
const std::string Two = "C:\\W\\Mozilla\\Profiles\\work\\wxyz.slt";
const std::string Header = "# HTTP Cookie File\n\n";
const std::string Login = ".shop.example\tTRUE\t/\tFALSE\t1023456789\tlogin\tme\r\n";

struct NetscapePc : WashFixture {
  frmNSCookieKeep keep{engine};

  NetscapePc() { pc.shellFolder("AppData", "C:\\W"); }
  void profiles() {
    pc.file("C:\\W\\Mozilla\\Registry.dat", profileRegistry({One, Two}));
    for (const std::string& profile : {One, Two}) {
      pc.file(profile + "\\Cookies.txt", Header + cookieLine(".shop.example", "basket", "17") + Login +
                                             "no tab\n" + cookieLine("news.example", "n", "1"));
      for (const char* file :
           {"history.dat", "history.mab", "history.txt", "prefs.js", "Cache\\a", "Cache\\S\\b", "NewCache\\c",
            "Mail\\Trash", "Mail\\Trash.msf", "Mail\\Inbox", "Mail\\A\\B\\TRASH", "Mail\\A\\B\\trash.MSF",
            "Mail\\A\\Trash.old", "Mail\\Trash.sbd\\Inbox", "Trash"}) {
        pc.file(profile + "\\" + file);
      }
    }
  }
  std::string wash() {
    engine.clean.txtResult.clear();
    CleanNetscape(engine, keep);
    return engine.clean.txtResult;
  }
};

std::size_t lines(std::string_view text, std::string_view start) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at = text.find('\n', at) + 1)
    count += text.substr(at).starts_with(start);
  return count;
}

}  // namespace

TEST_CASE("each Netscape option removes its own traces of every profile and nothing else") {
  struct Case {
    std::string what;
    CheckOption Options::*option;
    std::vector<const char*> gone;
    std::string report;
  };
  const Case cases[] = {
      {"history",
       &Options::chkNSHistory,
       {"history.dat", "history.mab"},
       "\tDeleting file history.dat\r\n\tDeleting file history.mab\r\n"},
      {"cache",
       &Options::chkNSCache,
       {"Cache\\a", "Cache\\S\\b", "Cache\\S", "NewCache\\c"},
       "\tDeleting file a\r\n\tDeleting file b\r\n\tDeleting Folder S\r\n\tDeleting file c\r\n"},
      {"mail",
       &Options::chkNSMail,
       {"Mail\\Trash", "Mail\\A\\B\\TRASH", "Mail\\Trash.msf", "Mail\\A\\B\\trash.MSF"},
       "\tDeleting file Trash\r\n\tDeleting file TRASH\r\n"
       "\tDeleting file Trash.msf\r\n\tDeleting file trash.MSF\r\n"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    NetscapePc pc;
    pc.profiles();
    pc.keep.Load();
    pc.keep.SaveNS6(Two);
    (pc.options.*c.option).Value(1);
    const std::string before = pc.pc.snapshot();
    CHECK(pc.wash() == Head + c.report + c.report);
    const std::string removed = pc.pc.diffSince(before);
    CHECK(lines(removed, "- ") == 2 * c.gone.size());
    for (const std::string& profile : {One, Two}) {
      for (const char* trace : c.gone) {
        CAPTURE(trace);
        CHECK(!pc.pc.hasFile(profile + "\\" + trace));
        CHECK(!pc.pc.hasFolder(profile + "\\" + trace));
      }
    }
  }
}

TEST_CASE("the cookie file keeps the ticked lines of its own profile alone") {
  NetscapePc pc;
  pc.profiles();
  pc.pc.file(One + "\\ZUBKeepNS6.inf", ".shop.example\tlogin\t\r\n");
  pc.pc.file(Two + "\\ZUBKeepNS6.inf", "news.example\tn\t\r\n.shop.example\tbasket\t\r\n");
  pc.options.chkNSCookies.Value(1);
  pc.options.chkBleach.Value(1);  // is not for a file that is written anew
  CHECK(pc.wash() == Head + "\tRemoving cookies\r\n\tRemoving cookies\r\n");
  CHECK(pc.pc.bytes(One + "\\Cookies.txt") == Login);
  CHECK(pc.pc.bytes(Two + "\\Cookies.txt") ==
        cookieLine(".shop.example", "basket", "17") + cookieLine("news.example", "n", "1"));
  CHECK(pc.engine.TotalBytes == 0);
  CHECK(pc.pc.turns == 0);
  CHECK(pc.engine.animated->state.Image9.picture == Picture::DoneMark);
}

TEST_CASE("a wash takes the ticks on screen, without a click on any button") {
  NetscapePc pc;
  pc.profiles();
  pc.options.chkNSCookies.Value(1);
  pc.keep.Show();
  pc.keep.lstDelete.Selected(1, true);
  pc.wash();
  CHECK(pc.pc.bytes(One + "\\Cookies.txt") == Login);
  CHECK(pc.pc.hasFile(Two + "\\Cookies.txt"));
  CHECK(pc.pc.bytes(Two + "\\Cookies.txt") == "");
  CHECK(pc.keep.cmbProfile.ListIndex() == 0);
  CHECK(pc.keep.lstDelete.ListCount() == 1);  // shows what is left of the profile
}

TEST_CASE("the profile that is chosen again after a wash takes over the ticks of the last one washed") {
  NetscapePc pc;
  pc.profiles();
  pc.pc.file(One + "\\ZUBKeepNS6.inf", ".shop.example\tlogin\t\r\n");
  pc.pc.file(Two + "\\ZUBKeepNS6.inf", "news.example\tn\t\r\n");
  pc.options.chkNSCookies.Value(1);
  pc.wash();
  CHECK(pc.pc.bytes(One + "\\ZUBKeepNS6.inf") == "news.example\tn\t\r\n");
}

TEST_CASE("without profiles or options the task reports its heading alone") {
  NetscapePc pc;
  pc.pc.file("C:\\ZUBKeepNS6.inf", "old");
  for (CheckOption Options::*option :
       {&Options::chkNSHistory, &Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail}) {
    (pc.options.*option).Value(1);
  }
  CHECK(pc.wash() == Head);
  CHECK(pc.pc.bytes("C:\\ZUBKeepNS6.inf") == "");

  NetscapePc idle;
  idle.profiles();
  CHECK(idle.wash() == Head);
  CHECK(idle.pc.hasFile(One + "\\history.dat"));
  CHECK(idle.engine.animated->state.lblCompleted.Caption == "1");
}

TEST_CASE("profiles that are read again amid a wash do not lead it astray") {
  NetscapePc pc;
  pc.profiles();
  for (CheckOption Options::*option : {&Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail}) {
    (pc.options.*option).Value(1);
  }
  pc.keep.Show();
  pc.keep.cmbProfile.ListIndex(1);
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 1) pc.keep.cmdRefresh_Click();
    if (turn == 2) pc.keep.cmbProfile.ListIndex(3);  // a name without a folder
    if (turn == 3) pc.pc.file("C:\\W\\Mozilla\\Registry.dat", "");
    if (turn == 4) pc.keep.cmdRefresh_Click();
  };
  pc.wash();
  CHECK(pc.keep.cmbProfile.ListIndex() == 1);
  CHECK(!pc.pc.hasFile(One + "\\Cache\\a"));
  CHECK(pc.pc.hasFile(One + "\\prefs.js"));
  CHECK(pc.pc.hasFile(Two + "\\prefs.js"));
}
