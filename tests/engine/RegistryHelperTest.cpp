#include <doctest/doctest.h>

#include <algorithm>

#include "base/Text.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string CU = "HKEY_CURRENT_USER\\";
using Texts = std::vector<std::string>;

// A has the values One and Two and the empty subkey Sub; B the same; C an unnamed value too; D a deeper subkey.
struct Seeded : WashFixture {
  explicit Seeded(std::vector<std::string> facts = {}) : WashFixture(std::move(facts)) {
    for (const char* key : {"A", "B", "C", "D", "e", "e-merge\\A"}) {
      pc.value(CU + key, "One", "1");
      pc.value(CU + key, "Two", "2");
      pc.key(CU + key + "\\Sub");
    }
    for (const char* key : {"C", "D"}) pc.value(CU + key, "", "unnamed");
    pc.value(CU + "D\\Deep\\Deeper", "V", "x");
  }
  RegistryHelper& helper() { return engine.registryHelper; }
  // What is left of a key, such as "One Two Sub".
  std::string left(const std::string& key) {
    if (!pc.hasKey(CU + key)) return "gone";
    std::string all;
    for (const std::string& name : pc.valueNames(CU + key)) all += (name.empty() ? "(unnamed)" : name) + " ";
    for (const char* child : {"Deep", "Sub"}) {
      if (pc.hasKey(CU + key + "\\" + child)) all += std::string(child) + " ";
    }
    return std::string(trim(all));
  }
};

}  // namespace

TEST_CASE("a trace finds its value by hive, path and name") {
  struct {
    const char* spec;
    const char* found;
  } const rows[] = {
      {"HKEY_CURRENT_USER\\Some-Path\\In+ Value`= Name", "user"},
      {"  hkey_Current_User \\some-path\\in+ Value`=   NAME  ", "user"},
      {"HKEY_CURRENT_USER\\Some-Path\\In+ Value`= a=Name", "user"},  // behind the last "="
      {"HKEY_LOCAL_MACHINE\\Some-Path\\In+ Value`= Name", "machine"},
      {"HKEY_USERS\\Some-Path\\In+ Value`= Name", "users"},
      {"HKEY_CLASSSES_ROOT\\Some-Path\\In+ Value`= Name", "classes"},
      {"HKEY_CLASSES_ROOT\\Some-Path\\In+ Value`= Name", ""},   // no hive before it
      {"HKEY_CURRENT_USER\\Some-Path\\In + Value`= Name", ""},  // the path keeps its blank
      {"HKEY_CURRENT_USER\\Some-Path\\In+ value`= Name", ""},   // no marker
      {"HKEY_CURRENT_USER\\Some-Path\\In+ Value`= Other", ""},
      {"HKEY_CURRENT_USER\\None+ Value`= Name", ""},
  };
  for (const auto& [spec, found] : rows) {
    CAPTURE(spec);
    WashFixture pc;
    pc.pc.value("HKEY_CURRENT_USER", "", "the hive's own");
    pc.pc.value("HKEY_CURRENT_USER\\Some-Path\\In", "Name", "user");
    pc.pc.value("HKEY_LOCAL_MACHINE\\Some-Path\\In", "Name", "machine");
    pc.pc.value("HKEY_USERS\\Some-Path\\In", "Name", "users");
    pc.pc.value("HKEY_CLASSES_ROOT\\Some-Path\\In", "Name", "classes");
    CHECK(pc.engine.registryHelper.TraceValue(spec) == found);
    CHECK(pc.engine.registryHelper.ValueMode == contains(spec, "Value`"));
    CHECK_FALSE(pc.engine.registryHelper.KeyMode);
  }
}

TEST_CASE("a value reads as text of any type, short of its last character") {
  struct {
    std::string stored;
    ValueType type;
    std::string text;
  } const rows[] = {{std::string("C:\\X\0", 5), ValueType::Text, "C:\\X"},
                    {std::string("C:\\X\0", 5), ValueType::Binary, "C:\\X"},
                    {"C:\\X", ValueType::Text, "C:\\"},
                    {std::string("C:\\X \0", 6), ValueType::Text, "C:\\X "},
                    // The buffer moves up by its leading blanks, and the NULs behind the text with it.
                    {std::string("  C:\\X\0", 7), ValueType::Text, std::string("C:\\X\0\0", 6)},
                    {"", ValueType::Text, ""},
                    {std::string(1024, 'x'), ValueType::Text, std::string(1023, 'x')},
                    {std::string(1025, 'x'), ValueType::Text, ""}};
  for (const auto& row : rows) {
    CAPTURE(row.stored.size());
    WashFixture pc;
    pc.pc.value(CU + "K", "V", row.type, row.stored);
    CHECK(pc.engine.registryHelper.TraceValue(CU + "K+ Value`= V") == row.text);
  }
}

TEST_CASE("a trace without its signs is refused to the caller") {
  Seeded pc;
  const std::string before = pc.pc.snapshot();
  for (const char* spec :
       {"", "HKEY_CURRENT_USER", "HKEY_CURRENT_USER\\A Key*", "HKEY_CURRENT_USER\\A Value`= V"}) {
    CAPTURE(spec);
    CHECK_THROWS_WITH(pc.helper().DeleteTrace(spec), "Invalid procedure call or argument");
  }
  CHECK(pc.pc.diffSince(before).empty());
}

TEST_CASE("what a trace removes depends on those before it in the process") {
  const std::string keyForm = CU + "None- Key*";
  const std::string valueForm = CU + "None+ Value`= V";
  struct {
    const char* family;
    std::string before;  // removed first, or read where it begins with "?"
    std::string spec;
    int result;
    const char* key;
    const char* left;
  } const rows[] = {
      {"9x", "", CU + "A- Key*", 0, "A", "gone"},
      {"9x", "", " hkey_current_user \\a - Key*  ", 0, "A", "gone"},
      {"9x", "", CU + "e-merge\\A- Key*", 0, "e", "gone"},  // a path ends at its first hyphen
      {"9x", "", CU + "e-merge\\A- Key*", 0, "e-merge\\A", "One Two Sub"},
      {"9x", "", CU + "A+ Value`= One", 0, "A", "Two Sub"},
      {"9x", "", CU + "A+ Value`= None", -1, "A", "One Two Sub"},
      // From the first key form on a value form wipes the whole key.
      {"9x", keyForm, CU + "A+ Value`= One", 0, "A", "gone"},
      {"9x", keyForm, CU + "A+ Value`= None", -1, "A", "gone"},
      // From the first value form on, a read one too, a key form also deletes the unnamed value.
      {"9x", valueForm, CU + "A- Key*", -1, "A", "gone"},
      {"9x", "?" + valueForm, CU + "A- Key*", -1, "A", "gone"},
      {"9x", "?" + valueForm, CU + "C- Key*", 0, "C", "gone"},
      // Deeper subkeys: the PC's decision. The unnamed value has no name to go by.
      {"9x", "", CU + "D- Key*", 0, "D", "gone"},
      {"nt", "", CU + "D- Key*", -1, "D", "(unnamed) Deep"},
      {"nt", "?" + valueForm, CU + "D- Key*", -1, "D", "Deep"},
      {"nt", "", CU + "A- Key*", 0, "A", "gone"},
      // Both markers: the path is that of the value form.
      {"9x", "", CU + "A+ Value`= x- Key*", -1, "A", "gone"},
      // A hive that matches no name leaves the one before it in force.
      {"9x", "", "HKey_Classes_Root\\A- Key*", -1, "A", "One Two Sub"},
      {"9x", "?HKEY_LOCAL_MACHINE\\None+ Value`= V", "HKey_Classes_Root\\A- Key*", -1, "A", "One Two Sub"},
      {"9x", CU + "None- Key*", "HKey_Classes_Root\\A- Key*", 0, "A", "gone"},
      {"9x", "", CU + "A- KEY*", 0, "A", "One Two Sub"},  // no marker: the hive itself, and no mode is on
  };
  for (const auto& row : rows) {
    CAPTURE(row.before);
    CAPTURE(row.spec);
    CAPTURE(row.family);
    Seeded pc({std::string("family = ") + row.family});
    if (row.before.starts_with('?')) {
      pc.helper().TraceValue(row.before.substr(1));
    } else if (!row.before.empty()) {
      CHECK(pc.helper().DeleteTrace(row.before) == -1);
    }
    CHECK(pc.helper().DeleteTrace(row.spec) == row.result);
    CHECK(pc.left(row.key) == row.left);
    CHECK(pc.left("B") == "One Two Sub");
    CHECK(pc.engine.animated->RemoveEntries() == removing::Registry);
  }
}

TEST_CASE(
    "every call remembers the names of the key that it opened, once each, for all that are wiped later") {
  Seeded pc({"family = nt"});
  const auto told = [](const NameList& names) {
    Texts all;
    for (std::size_t place = 0; place < names.size(); ++place) all.push_back(names[place]);
    return all;
  };
  pc.pc.value(CU + "C", "  padded", "x");
  CHECK(pc.helper().DeleteTrace(CU + "None+ Value`= One") == -1);
  CHECK(pc.helper().lstValue.size() == 0);
  pc.helper().DeleteTrace(CU + "C+ Value`= One");
  pc.helper().DeleteTrace(CU + "A+ Value`= One");
  CHECK(told(pc.helper().lstKey) == Texts{"Sub"});
  CHECK(told(pc.helper().lstValue) == Texts{"[Default]", "padded", "Two"});
  // On a key that is opened again, what has come behind the names that were there is met, whatever went.
  for (const char* name : {"Two", "Zebra"}) {
    pc.pc.value(CU + "A", "Zebra", "x");
    pc.pc.value(CU + "A", "Zoo", "x");
    pc.helper().DeleteTrace(CU + "A+ Value`= " + name);
  }
  CHECK(told(pc.helper().lstValue) == Texts{"[Default]", "padded", "Two", "Zebra", "Zoo"});

  // Where not all of a key can be seen, all names are tried under it.
  for (const char* call : {"subkey ", "value "}) pc.pc.fail(call + CU + "D", status::AccessDenied);
  CHECK(pc.helper().DeleteTrace(CU + "D- Key*") == -1);
  CHECK(pc.left("D") == "One Deep");
}

TEST_CASE("the names of a key that holds more than one walk goes through are met as its values go") {
  WashFixture pc;
  for (int name = 0; name < 16003; ++name) pc.pc.value(CU + "Many", std::to_string(100000 + name), "x");
  for (const std::size_t seen : {16001U, 16002U, 16003U, 16003U}) {
    pc.engine.registryHelper.DeleteTrace(CU + "Many+ Value`= " + std::to_string(99999 + seen - 16001));
    CHECK(pc.engine.registryHelper.lstValue.size() == seen);
  }
}

TEST_CASE("without a marker the hive itself is opened, and wiped once a key form was met") {
  Seeded pc;
  pc.pc.value("HKEY_USERS\\.Default", "V", "1");
  CHECK(pc.helper().DeleteTrace("HKEY_USERS\\anything") == 0);
  CHECK(pc.pc.hasValue("HKEY_USERS\\.Default", "V"));
  pc.helper().DeleteTrace(CU + "None- Key*");
  pc.helper().DeleteTrace("HKEY_USERS\\anything");
  CHECK_FALSE(pc.pc.hasKey("HKEY_USERS\\.Default"));
  CHECK(pc.left("A") == "One Two Sub");
}

TEST_CASE("a key without rights answers -1, and an enumeration that never ends stops at its limit") {
  Seeded pc;
  pc.pc.fail("open " + CU + "A", status::AccessDenied);
  CHECK(pc.helper().DeleteTrace(CU + "A+ Value`= One") == -1);
  CHECK(pc.engine.leftBehind.size() == 1);
  pc.pc.clearFaults();
  for (const char* call : {"subkey ", "value "}) pc.pc.fail(call + CU + "A", status::AccessDenied);
  CHECK(pc.helper().DeleteTrace(CU + "A+ Value`= One") == 0);
  CHECK(pc.helper().lstKey.size() == 1);
  CHECK(pc.helper().lstValue.size() == 1);
}
