#include <doctest/doctest.h>

#include "base/Text.h"
#include "plugins/CustomPluginRun.h"
#include "plugins/PluginCheck.h"
#include "plugins/Plugins.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Base = "C:\\Program Files\\Zubrane\\Plugins\\P";

struct Checked {
  std::string line;
  bool works;
  std::string meaning;  // a part of it
};

// A PC on which every entry of the tables that can work finds something.
struct CheckPc : WashFixture {
  Plugins plugins{engine};
  PluginCheck check{pc.platform()};

  CheckPc() : WashFixture({"family = nt"}) {
    for (const char* name : {"C:\\T\\a.tmp", "C:\\T\\S\\b.tmp", "C:\\a.tmp"}) pc.file(name);
    for (const char* hive : {"HKEY_CURRENT_USER", "HKEY_CLASSES_ROOT"}) {
      pc.value(std::string(hive) + "\\K", "n", "x");
      pc.value(std::string(hive) + "\\K", "", "x");
      pc.value(std::string(hive) + "\\e-k\\K", "n", "x");
    }
  }
  // True where the run of a plugin of these two files takes something from the PC.
  bool runRemoves(std::string_view zb1, std::string_view zb2) {
    pc.file(Base + ".zb1", zb1);
    pc.file(Base + ".zb2", zb2);
    const std::string before = pc.snapshot();
    RunCustomPlugin(engine, plugins, "P");
    const std::string diff = pc.diffSince(before);
    return diff.starts_with("- ") || contains(diff, "\n- ");
  }
};

}  // namespace

TEST_CASE("what the check says of an entry is what a run does with it") {
  const Checked files[] = {
      {"C:\\T\\a.tmp", true, "Removes the file C:\\T\\a.tmp"},
      {"  c:\\t\\A.TMP ", true, "Removes the file c:\\t\\A.TMP"},
      {"\\T\\a.tmp", true, "Removes the file \\T\\a.tmp"},
      {"a.tmp", true, "looked for from the current folder"},
      {"C:\\T\\*.tmp", true, "Removes the files *.tmp of the folder C:\\T\\"},
      {"C:\\T\\*.tmp >PLUS subdirectories<", true, "*.tmp of the folder C:\\T\\ and of all folders below it"},
      {"C:\\T\\*.tmp>plus subdirectories<", true, "all folders below it"},
      {"T\\*.tmp", true, "looked for from the current folder"},
      {"C:\\T\\a.tmp >plus subdirectories<", false, "only behind a pattern"},
      {"C:\\T\\ >plus subdirectories< *.tmp", false, "is not read"},
      {"*.*", false, "three characters or less"},
      {"*.tmp", false, "Stops the plugin"},
      {"C:\\T\\S*\\b.tmp", false, "only the part behind the last backslash"},
      {"C:\\T\\", false, "names no file"},
      {"C:\\T\\a<b", false, "no file name can hold"},
      {"C:\\T\\a\tb", false, "no file name can hold"},
      {"C:\\T\\C:\\a.tmp", false, "no file name can hold"},
  };
  const Checked traces[] = {
      {"HKey_Current_User\\K- Key*", true, "Removes the key HKey_Current_User\\K with"},
      {"HKEY_CURRENT_USER\\K+ Value`= n", true, "Removes the value n of the key HKEY_CURRENT_USER\\K"},
      {"HKEY_CURRENT_USER\\K+ Value`= ", true, "Removes the unnamed value of the key"},
      {"HKEY_CURRENT_USER\\e-k\\K+ Value`= n", true, "Removes the value n"},
      {"HKEY_CLASSSES_ROOT\\K- Key*", true, "Removes the key"},
      {"HKEY_CLASSES_ROOT\\K- Key*", false, "no hive matches"},
      {"HKCU\\K- Key*", false, "no hive matches"},
      {"HKEY_CURRENT_USER\\K- KEY*", false, "in this case"},
      {"HKEY_CURRENT_USER\\K+ value`= n", false, "in this case"},
      {"HKEY_CURRENT_USER\\K", false, "no marker"},
      {"HKEY_CURRENT_USER\\e-k\\K- Key*", false, "first hyphen"},
      {"HKEY_CURRENT_USER\\e-k Key*", false, "first hyphen"},
      {"HKEY_CURRENT_USER\\e+k+ Value`= n", false, "first plus sign"},
      {"HKEY_CURRENT_USER\\K+ Value`= a=b", false, "last equals sign"},
      {"HKEY_CURRENT_USER\\K+ Value` n", false, "last equals sign"},
      {"HKEY_CURRENT_USER\\K+ Value`= n- Key*", false, "both markers"},
      {"HKEY_CURRENT_USER\\None\\- Key*", false, "empty part"},
      {"HKEY_CURRENT_USER\\+ Value`= n", false, "the hive itself"},
      {"HKEY_CURRENT_USER\\K + Value`= n", false, "a blank"},
      {"K- Key*", false, "needs a backslash"},
      {"HKEY_CURRENT_USER\\K Key*", false, "needs its sign"},
      {"No entries.", false, "only capitals"},
  };
  const auto check = [](PluginFile which, const Checked& one) {
    CAPTURE(one.line);
    CheckPc pc;
    pc.check.begin(which);
    const CheckedLine checked = pc.check.next(one.line);
    CHECK(checked.works == one.works);
    CHECK_MESSAGE(contains(checked.meaning, one.meaning), checked.meaning);
    const bool removes =
        which == PluginFile::Files ? pc.runRemoves(one.line, "") : pc.runRemoves("", one.line);
    CHECK(removes == (one.works || one.meaning == "both markers"));
  };
  for (const Checked& one : files) check(PluginFile::Files, one);
  for (const Checked& one : traces) check(PluginFile::Registry, one);
}

TEST_CASE("a value behind a key takes its whole key, and the check says so") {
  CheckPc pc;
  pc.check.begin(PluginFile::Registry);
  CHECK_FALSE(contains(pc.check.next("HKEY_USERS\\a+ Value`= n").meaning, "whole key"));
  CHECK(pc.check.next("HKEY_CURRENT_USER\\None- Key*").works);
  for (const char* value : {"HKEY_CURRENT_USER\\K+ Value`= other", "HKEY_USERS\\a+ Value`= n"}) {
    CHECK(contains(pc.check.next(value).meaning, "and the whole key with it"));
  }
  pc.runRemoves("", "HKEY_CURRENT_USER\\None\\a- Key*\r\nHKEY_CURRENT_USER\\K+ Value`= other");
  CHECK_FALSE(pc.pc.hasKey("HKEY_CURRENT_USER\\K"));
}

TEST_CASE("a check goes through the files as a run does") {
  CheckPc pc;
  const auto read = [&](std::string_view text, PluginFile which) {
    pc.pc.file(Base + ".txt", text);
    std::string meanings;
    for (const CheckedLine& line : pc.check.readFile(Base + ".txt", which)) {
      meanings +=
          std::to_string(line.number) + (line.works ? " " : "! ") + line.text + ": " + line.meaning + ";";
    }
    return meanings;
  };
  CHECK(read("C:\\a\r\nno entries.\r\nC:\\b", PluginFile::Files) ==
        "1 C:\\a: Removes the file C:\\a;2 no entries.: Ends the list;"
        "3! C:\\b: Is not read: the list has ended above;");
  CHECK(read(" NO ENTRIES. \r\nx\r\n", PluginFile::Registry) ==
        "1  NO ENTRIES. : Ends the list;2! x: Is not read: the list has ended above;");
  CHECK(read("*.tmp", PluginFile::Files).starts_with("1! *.tmp: Stops the plugin"));
  CHECK(read("HKEY_USERS\\a- Key*", PluginFile::Registry) ==
        "1! HKEY_USERS\\a- Key*: Is not read: the plugin has stopped above;");
  CHECK_THROWS_AS(pc.check.readFile(Base + ".zb1", PluginFile::Files), RuntimeError);
}
