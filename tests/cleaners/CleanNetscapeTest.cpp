#include <doctest/doctest.h>

#include "cleaners/CleanNetscape.h"
#include "cleaners/NetscapePc.h"

using namespace zub;

namespace {

const std::string Head =
    "ZUB has cleaned Netscape files ans registry entries, with the following results:\r\n";

struct WashPc : NetscapePc {
  explicit WashPc(std::initializer_list<CheckOption Options::*> chosen) {
    for (const auto option : chosen) (options.*option).Value(1);
  }
  std::string wash() {
    return removedBy([this] { CleanNetscape(engine, keep); });
  }
};

Paths inBoth(const Paths& names) {
  Paths paths;
  for (const std::string& profile : {One, Two}) {
    for (const std::string& name : names) paths.push_back(profile + "\\" + name);
  }
  return paths;
}

}  // namespace

TEST_CASE("each Netscape option removes its own traces of every profile and nothing else") {
  const struct {
    CheckOption Options::*option;
    Paths traces;
  } cases[] = {
      {&Options::chkNSHistory, {"history.dat", "history.mab"}},
      {&Options::chkNSCache, {"Cache\\a", "Cache\\S\\b", "Cache\\S\\", "NewCache\\c"}},
      {&Options::chkNSMail, {"Mail\\Trash", "Mail\\A\\B\\TRASH", "Mail\\Trash.msf", "Mail\\A\\B\\trash.MSF"}},
  };
  const auto wash = [&](WashPc& pc) {
    pc.profiles();
    for (const auto& each : cases) pc.plant(inBoth(each.traces));
    pc.plant(inBoth({"history.txt", "prefs.js", "Trash", "Mail\\Inbox", "Mail\\A\\Trash.old",
                     "Mail\\Trash.sbd\\Inbox", "ZUBKeepNS6.inf"}));
    pc.keep.Load();
    pc.keep.SaveNS6(One);
    return pc.wash();
  };
  for (const auto& c : cases) {
    CAPTURE(c.traces.front());
    WashPc pc({c.option});
    CHECK(wash(pc) == listed(inBoth(c.traces)));
  }
  WashPc idle({});
  CHECK(wash(idle) == "");
  CHECK(idle.takeReport() == Head);
  CHECK(idle.progress().lblCompleted.Caption == "1");
}

TEST_CASE("the cookie file keeps the ticked lines of its own profile alone") {
  WashPc pc({&Options::chkNSCookies, &Options::chkBleach});  // a file that is written anew is not shredded
  pc.profiles();
  pc.keepFile(One, ".shop.example\tlogin\t\r\n");
  pc.keepFile(Two, ".shop.example\tlogin\t\r\n.shop.example\tbasket\t\r\n");
  pc.wash();
  CHECK(pc.takeReport() == Head + "\tRemoving cookies\r\n\tRemoving cookies\r\n");
  CHECK(pc.cookies(One) == Login);
  CHECK(pc.cookies(Two) == Basket + Login);
  CHECK(pc.engine.TotalBytes == 0);
  // The profile that then is chosen again takes over the ticks of the last one washed.
  CHECK(pc.kept(One) == ".shop.example\tbasket\t\r\n.shop.example\tlogin\t\r\n");
}

TEST_CASE("a wash takes the ticks on screen, without a click on any button") {
  WashPc pc({&Options::chkNSCookies});
  pc.profiles();
  pc.keep.Show();
  pc.keep.lstDelete.Selected(1, true);
  pc.wash();
  CHECK(pc.cookies(One) == Login);
  CHECK(pc.cookies(Two) == "");
  CHECK(pc.keep.cmbProfile.ListIndex() == 0);
  CHECK(pc.keep.lstDelete.ListCount() == 1);  // shows what is left of the profile
}

TEST_CASE("without profiles the task reports its heading alone, and empties the keep file of the root") {
  WashPc pc({&Options::chkNSHistory, &Options::chkNSCookies, &Options::chkNSCache, &Options::chkNSMail});
  pc.plant({RootKeep, "C:\\history.dat", "C:\\Cookies.txt", "C:\\Cache\\a", "C:\\Mail\\Trash"});
  CHECK(pc.wash() == listed({RootKeep, "+ " + RootKeep}));
  CHECK(pc.pc.bytes(RootKeep) == "");
  CHECK(pc.takeReport() == Head);
}

TEST_CASE("profiles that are read again amid a wash do not lead it astray") {
  WashPc pc({&Options::chkNSCookies, &Options::chkNSCache});
  pc.profiles();
  pc.plant(inBoth({"Cache\\a", "Cache\\b", "prefs.js"}));
  pc.keep.Show();
  pc.keep.cmbProfile.ListIndex(1);
  pc.pc.onDoEvents = [&](int turn) {
    if (turn == 1) pc.keep.cmdRefresh_Click();
    if (turn == 2) pc.keep.cmbProfile.ListIndex(3);  // a name without a folder
    if (turn == 3) pc.pc.file(ProfileRegistry, "");
    if (turn == 4) pc.keep.cmdRefresh_Click();
  };
  pc.wash();
  CHECK(pc.keep.cmbProfile.ListIndex() == 1);
  CHECK(!pc.pc.hasFile(One + "\\Cache\\a"));
  for (const std::string& file : inBoth({"prefs.js"})) CHECK(pc.pc.hasFile(file));
}
