#include <doctest/doctest.h>

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

// The lines of a diff that tell of something gone. (A folder given as a file is "locked", and noted down for the
// next start of the PC.)
std::string removals(std::string_view diff) {
  std::string lines;
  while (!diff.empty()) {
    const std::string_view line = diff.substr(0, std::min(diff.find('\n'), diff.size() - 1) + 1);
    if (line.starts_with("- ")) lines += line;
    diff.remove_prefix(line.size());
  }
  return lines;
}

}  // namespace

TEST_CASE("a run removes what the entries name and nothing beside it, and reports the names in capitals") {
  PluginRun wash;
  for (const char* name :
       {"C:\\Data\\One.dat", "C:\\Data\\two.dat", "C:\\Data\\last.dat", "C:\\Temp\\a.tmp", "C:\\Temp\\a.txt",
        "C:\\Temp\\sub\\b.tmp", "C:\\Deep\\x\\y\\c.tmp", "C:\\Deep\\x\\c.txt", "C:\\Deep\\d.tmp"}) {
    wash.pc.file(name);
  }
  wash.pc.value(Traces, "Last", "a");
  wash.pc.value(Traces, "Other", "a");
  wash.pc.value(Traces + "\\Recent", "1", "a");
  wash.pc.key(Traces + "\\Recently");
  wash.save(
      "c:\\data\\one.dat\r\n  C:\\Temp\\?.TMP  \r\nC:\\Deep\\*.tmp >Plus subdirectories<\r\n"
      "No entries.\r\nC:\\Data\\last.dat\r\n",
      " " + Traces + "+ Value`= Last\r\n" + Traces + "\\Recent- Key*");
  const std::string before = wash.pc.snapshot();
  wash.run();

  for (const char* gone :
       {"C:\\Data\\One.dat", "C:\\Temp\\a.tmp", "C:\\Deep\\x\\y\\c.tmp", "C:\\Deep\\d.tmp"}) {
    CHECK_FALSE_MESSAGE(wash.pc.hasFile(gone), gone);
  }
  for (const char* kept : {"C:\\Data\\two.dat", "C:\\Data\\last.dat", "C:\\Temp\\a.txt",
                           "C:\\Temp\\sub\\b.tmp", "C:\\Deep\\x\\c.txt"}) {
    CHECK_MESSAGE(wash.pc.hasFile(kept), kept);
  }
  CHECK(wash.pc.hasFolder("C:\\Deep\\x\\y"));
  CHECK_FALSE(wash.pc.hasValue(Traces, "Last"));
  CHECK(wash.pc.hasValue(Traces, "Other"));
  CHECK_FALSE(wash.pc.hasKey(Traces + "\\Recent"));
  CHECK(wash.pc.hasKey(Traces + "\\Recently"));
  CHECK(wash.takeReport() == Heading + "\tDeleting file ONE.DAT\r\n\tDeleting file ONE.DAT\r\n" +
                                 "\tDeleting file a.tmp\r\n\tDeleting file d.tmp\r\n" +
                                 "\tDeleting file c.tmp\r\n" + RegistryLine);
  CHECK(wash.progress().lblApplication.Caption == "Shop");
  CHECK(wash.progress().StatusBar1[1] == "Number of tasks competed: 1");
}

TEST_CASE("how the second file ends decides whether the plugin counts") {
  struct Case {
    std::string name;
    std::string zb2;
    bool counted;
    bool lastRuns;  // the entry at the end is reached
  };
  const std::string last = "\r\n" + Traces + "\\Last- Key*\r\n";
  const Case cases[] = {
      {"the editor's mark for no entries", "No entries.\r\n", false, false},
      {"the mark in the midst", "No entries." + last, false, false},
      {"the mark in capitals", " NO ENTRIES. " + last, true, false},
      {"an empty file", "", true, false},
      {"an empty line", last, false, false},
      {"a line without a backslash", "Software" + last, false, false},
      {"a marker without its sign", Traces + " Key*" + last, false, false},
      {"a key that is not there", Traces + "\\None- Key*" + last, true, true},
      {"a hive that nothing matches", "HKEY_NONE\\Software- Key*" + last, true, true},
  };
  for (const Case& one : cases) {
    CAPTURE(one.name);
    PluginRun wash;
    wash.pc.file("C:\\a.dat");
    wash.pc.key(Traces + "\\Last");
    wash.save("C:\\a.dat\r\n", one.zb2);
    wash.run();
    CHECK_FALSE(wash.pc.hasFile("C:\\a.dat"));
    CHECK(wash.pc.hasKey(Traces + "\\Last") == !one.lastRuns);
    CHECK(wash.completed() == (one.counted ? "1" : "0"));
    CHECK(wash.takeReport().ends_with(RegistryLine));
  }
}

TEST_CASE("a missing file ends the run where it is read, without a word") {
  PluginRun wash;
  wash.pc.file("C:\\a.dat");
  wash.pc.file(Folder + "Shop.zb2", Traces + "- Key*");
  wash.pc.key(Traces);
  wash.run();
  CHECK(wash.takeReport() == "");
  CHECK(wash.pc.hasKey(Traces));

  PluginRun second;
  second.pc.file("C:\\a.dat");
  second.pc.file(Folder + "Shop.zb1", "C:\\a.dat\r\nC:\\None\\*.x >plus subdirectories<");
  second.run();
  CHECK_FALSE(second.pc.hasFile("C:\\a.dat"));
  CHECK(second.takeReport() == Heading + "\tDeleting file A.DAT\r\n\tDeleting file A.DAT\r\n");
  CHECK(second.progress().lblCurrent.Caption == "Searching for files: C:\\NONE\\*.X ");
  CHECK(second.completed() == "0");
  CHECK(second.pc.messages.empty());
}

TEST_CASE("a pattern without a folder stops the plugin in the midst of its first file") {
  for (const char* entry : {"*.tmp", "*.tmp >plus subdirectories<"}) {
    PluginRun wash;
    wash.pc.file("C:\\a.dat");
    wash.pc.file("C:\\a.tmp");
    wash.pc.file("C:\\b.dat");
    wash.save(std::string("C:\\a.dat\r\n") + entry + "\r\nC:\\b.dat\r\n", "");
    wash.run();
    CHECK_FALSE(wash.pc.hasFile("C:\\a.dat"));
    CHECK(wash.pc.hasFile("C:\\a.tmp"));
    CHECK(wash.pc.hasFile("C:\\b.dat"));
    CHECK(wash.completed() == "0");
  }
}

TEST_CASE("entries that name no file remove nothing, and the run goes on") {
  const std::string entries[] = {"",
                                 "   ",
                                 "\\",
                                 "*",
                                 "*.*",
                                 "?:\\",
                                 "C:*",
                                 "*>plus subdirectories<",
                                 ">plus subdirectories< C:\\*.*",
                                 "C:\\A.TXT >plus subdirectories<",
                                 "C:\\",
                                 "C:\\Program Files",
                                 "C:\\Prog*\\a.txt",
                                 "C:\\None\\*.*",
                                 "Q:\\*.* >plus subdirectories<",
                                 "C:\\a.txt|b",
                                 "\xFF\x01\x7F"};
  for (const std::string& entry : entries) {
    CAPTURE(entry);
    PluginRun wash;
    wash.pc.file("C:\\a.txt");
    wash.pc.file("C:\\Program Files\\a.txt");
    wash.save(entry + "\r\n", "");
    const std::string before = wash.pc.snapshot();
    wash.run();
    CHECK(removals(wash.pc.diffSince(before)) == "");
    CHECK(wash.completed() == "1");
  }
}

TEST_CASE("the blank before the marker stays in the pattern: folders are not removed with all files") {
  PluginRun wash;
  wash.pc.file("C:\\Deep\\a.txt");
  wash.pc.file("C:\\Deep\\x\\b");
  wash.save("C:\\Deep\\*.* >plus subdirectories<", "");
  wash.run();
  CHECK_FALSE(wash.pc.hasFile("C:\\Deep\\a.txt"));
  CHECK_FALSE(wash.pc.hasFile("C:\\Deep\\x\\b"));
  CHECK(wash.pc.hasFolder("C:\\Deep\\x"));
}

TEST_CASE("binary, endless and huge plugin files") {
  std::string binary;
  for (int i = 0; i < 5000; ++i) binary += static_cast<char>(i * 37 % 251);
  const std::string contents[] = {binary, std::string(200000, 'a'), std::string(100000, '\0'),
                                  "\r\r\n\n\r" + binary};
  for (const std::string& content : contents) {
    PluginRun wash;
    wash.pc.file("C:\\a.txt");
    wash.pc.value(Traces, "a", "b");
    wash.save(content, content);
    const std::string before = wash.pc.snapshot();
    wash.run();
    CHECK(wash.pc.diffSince(before) == "");
  }
  PluginRun wash;
  std::string lines;
  for (int i = 0; i < 20000; ++i) lines += "C:\\Many\\" + std::to_string(i) + ".tmp\r\n";
  wash.pc.file("C:\\Many\\19999.tmp");
  wash.save(lines, "");
  wash.run();
  CHECK_FALSE(wash.pc.hasFile("C:\\Many\\19999.tmp"));
  CHECK(wash.completed() == "1");
}

TEST_CASE("a turn of the event loop may close the progress window and run the plugin again") {
  PluginRun wash;
  wash.pc.file("C:\\a.dat");
  wash.pc.file("C:\\b.dat");
  wash.pc.key(Traces);
  wash.save("C:\\a.dat\r\nC:\\b.dat\r\n", Traces + "- Key*");
  wash.pc.onDoEvents = [&](int turn) {
    if (turn != 1) return;
    wash.engine.animated->cmdFinish_Click();
    wash.run();
  };
  wash.run();
  CHECK_FALSE(wash.pc.hasFile("C:\\b.dat"));
  CHECK_FALSE(wash.pc.hasKey(Traces));
  CHECK(wash.completed() == "2");
  CHECK(wash.owner.calls == std::vector<std::string>{"Enable", "FinishedCleaning"});
}

TEST_CASE("the end of the process is no failure of the plugin") {
  PluginRun wash;
  wash.options.chkCloseAfterWash.Value(1);
  wash.pc.file("C:\\a.dat");
  wash.save("C:\\a.dat\r\n", "");
  wash.pc.onDoEvents = [&](int) { wash.engine.animated->cmdFinish_Click(); };
  CHECK_THROWS_AS(wash.run(), EndOfProcess);
}

TEST_CASE("a wash runs the selected plugins one after the other, whatever becomes of the first") {
  PluginRun wash;
  wash.pc.file("C:\\a.dat");
  wash.pc.file("C:\\b.dat");
  wash.pc.file(Folder + "First.zb1", "C:\\a.dat\r\n");
  wash.pc.file(Folder + "Off.zb1", "C:\\WINDOWS\\*.* >plus subdirectories<\r\n");
  wash.save("C:\\b.dat", "");
  wash.plugins.RefreshPluginList();
  wash.options.lstFiles.Selected(0, true);
  wash.options.lstFiles.Selected(2, true);
  wash.engine.clean.cleaners.customPlugin = [&](const std::string& name) {
    RunCustomPlugin(wash.engine, wash.plugins, name);
  };
  wash.engine.animated->StartClean();
  CHECK_FALSE(wash.pc.hasFile("C:\\a.dat"));
  CHECK_FALSE(wash.pc.hasFile("C:\\b.dat"));
  CHECK(wash.completed() == "1");
  CHECK(wash.progress().lblTasksTotal.Caption == "2");
  CHECK(wash.progress().Label11.ForeColor == colors::Green);
  CHECK_FALSE(wash.progress().Label11.Bold);
  CHECK(wash.progress().Image13.picture == Picture::DoneMark);
}
