#include <doctest/doctest.h>

#include "base/Text.h"
#include "plugins/CustomPluginRun.h"
#include "plugins/Plugins.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Folder = "C:\\Program Files\\Zubrane\\Plugins\\";
const std::string Traces = "HKEY_CURRENT_USER\\Software\\Shop";
const std::string Heading = "\r\nZUB has cleaned Shop , with the following results:\r\n";
const std::string RegistryLine = "\tDeleting registry items for Shop\r\n";

struct PluginRun : WashFixture {
  Plugins plugins{engine};

  void save(std::string_view zb1, std::string_view zb2) {
    pc.file(Folder + "Shop.zb1", zb1);
    pc.file(Folder + "Shop.zb2", zb2);
  }
  void run() { RunCustomPlugin(engine, plugins, "Shop"); }
  std::string completed() { return progress().lblCompleted.Caption; }
};

}  // namespace

TEST_CASE("a run removes what the entries name and nothing beside it, and reports the names in capitals") {
  PluginRun wash;
  std::vector<std::string> gone{"C:\\Data\\One.dat", "C:\\Temp\\a.tmp", "C:\\Deep\\x\\y\\c.tmp",
                                "C:\\Deep\\d.tmp", "C:\\All\\x\\b.c"};
  for (const std::string& path : gone) wash.pc.file(path);
  for (const char* kept : {"C:\\Data\\two.dat", "C:\\Data\\last.dat", "C:\\Temp\\a.txt",
                           "C:\\Temp\\sub\\b.tmp", "C:\\Deep\\x\\c.txt"}) {
    wash.pc.file(kept);
  }
  wash.pc.value(Traces, "Last", "a");
  wash.pc.value(Traces, "Other", "a");
  wash.pc.value(Traces + "\\Recent", "1", "a");
  wash.pc.key(Traces + "\\Late");
  // The blank before the marker stays in the pattern, so that the one for all files leaves the folders.
  wash.save(
      "c:\\data\\one.dat\r\n  C:\\Temp\\?.TMP  \r\nC:\\Deep\\*.tmp >Plus subdirectories<\r\n"
      "C:\\All\\*.* >plus subdirectories<\r\nNo entries.\r\nC:\\Data\\last.dat\r\n",
      " " + Traces + "+ Value`= Last\r\n" + Traces + "\\Recent- Key*");
  const std::string before = wash.pc.snapshot();
  wash.run();

  for (const std::string& path : gone) CHECK_FALSE_MESSAGE(wash.pc.hasFile(path), path);
  CHECK_FALSE(wash.pc.hasValue(Traces, "Last"));
  CHECK_FALSE(wash.pc.hasKey(Traces + "\\Recent"));
  gone.insert(gone.end(), {"\"Last\"", Traces + "\\Recent"});
  CHECK(beyond(wash.pc.diffSince(before), gone) == "");
  CHECK(wash.takeReport() == Heading + "\tDeleting file ONE.DAT\r\n\tDeleting file ONE.DAT\r\n" +
                                 "\tDeleting file a.tmp\r\n\tDeleting file d.tmp\r\n" +
                                 "\tDeleting file c.tmp\r\n\tDeleting file b.c\r\n" + RegistryLine);
  CHECK(wash.progress().lblApplication.Caption == "Shop");
  CHECK(wash.progress().StatusBar1[1] == "Number of tasks competed: 1");
}

TEST_CASE("a line may end its list or the plugin, which then is not counted") {
  struct Case {
    std::string zb1;  // stands between two files
    std::string zb2;  // stands before a key
    bool fileRuns;    // the second one
    bool keyRuns;
    bool counted;
  };
  const std::string good = "C:\\none.dat";
  const Case cases[] = {
      {"", "NO ENTRIES.", true, false, true},  // a blank entry is a file without a name
      {"No entries.", Traces + "\\None- Key*", false, true, true},
      {"*.t?", "", false, false, false},
      {"*.tmp >plus subdirectories<", "", false, false, false},
      {good, "HKEY_NONE\\Software- Key*", true, true, true},
      {good, " NO ENTRIES. ", true, false, true},
      {good, "No entries.", true, false, false},
      {good, "", true, false, false},
      {good, "Software", true, false, false},
      {good, Traces + " Key*", true, false, false},
  };
  for (const Case& one : cases) {
    CAPTURE(one.zb1);
    CAPTURE(one.zb2);
    PluginRun wash;
    for (const char* name : {"C:\\a.dat", "C:\\a.tmp", "C:\\b.dat"}) wash.pc.file(name);
    wash.pc.key(Traces + "\\Last");
    wash.save("C:\\a.dat\r\n" + one.zb1 + "\r\nC:\\b.dat", one.zb2 + "\r\n" + Traces + "\\Last- Key*\r\n");
    wash.run();
    CHECK_FALSE(wash.pc.hasFile("C:\\a.dat"));
    CHECK(wash.pc.hasFile("C:\\a.tmp"));
    CHECK(wash.pc.hasFile("C:\\b.dat") == !one.fileRuns);
    CHECK(wash.pc.hasKey(Traces + "\\Last") == !one.keyRuns);
    CHECK(wash.completed() == (one.counted ? "1" : "0"));
  }
}

TEST_CASE("a missing file ends the run where it is read, without a word") {
  PluginRun wash;
  wash.pc.file(Folder + "Shop.zb2", Traces + "- Key*");
  wash.pc.key(Traces);
  wash.run();
  CHECK(wash.takeReport() == "");
  CHECK(wash.pc.hasKey(Traces));

  PluginRun second;
  second.pc.file(Folder + "Shop.zb1", "C:\\None\\*.x >plus subdirectories<");
  second.run();
  CHECK(second.takeReport() == Heading);
  CHECK(second.progress().lblCurrent.Caption == "Searching for files: C:\\NONE\\*.X ");
  CHECK(second.completed() == "0");
  CHECK(second.pc.messages.empty());
}

TEST_CASE("a wash runs the selected plugins one after the other, whatever becomes of the first") {
  PluginRun wash;
  wash.pc.file("C:\\b.dat");
  wash.pc.file(Folder + "First.zb1", "");
  wash.pc.file(Folder + "Off.zb1", "C:\\WINDOWS\\*.* >plus subdirectories<\r\n");
  wash.save("C:\\b.dat", "");
  wash.plugins.RefreshPluginList();
  for (const int row : {0, 2}) wash.options.lstFiles.Selected(row, true);
  wash.engine.clean.cleaners.customPlugin = [&](const std::string& name) {
    RunCustomPlugin(wash.engine, wash.plugins, name);
  };
  const std::string before = wash.pc.snapshot();
  wash.engine.animated->StartClean();
  CHECK_FALSE(wash.pc.hasFile("C:\\b.dat"));
  CHECK(beyond(wash.pc.diffSince(before), {"C:\\b.dat"}) == "");
  CHECK(wash.completed() == "1");
}

TEST_CASE("the end of the process is no failure of the plugin") {
  PluginRun wash;
  wash.options.chkCloseAfterWash.Value(1);
  wash.pc.file("C:\\a.dat");
  wash.save("C:\\a.dat\r\n", "");
  wash.pc.onDoEvents = [&](int) { wash.engine.animated->cmdFinish_Click(); };
  CHECK_THROWS_AS(wash.run(), EndOfProcess);
}
