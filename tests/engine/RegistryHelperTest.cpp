#include <doctest/doctest.h>

#include "base/Text.h"
#include "support/Golden.h"
#include "support/TracedWash.h"

using namespace zub;

namespace {

const std::string CU = "HKEY_CURRENT_USER\\";

// The keys that a trace is to remove: values, an unnamed one, and a subkey, of which that of D is not empty.
struct Traces : TracedWash {
  using TracedWash::TracedWash;

  void plant() {
    for (const char* key : {"A", "C", "D", "e", "e-merge\\A"}) {
      pc.value(CU + key, "One", "1");
      pc.key(CU + key + "\\Sub");
    }
    for (const char* key : {"A", "D"}) pc.value(CU + key, "Two", "2");
    for (const char* key : {"C", "D"}) pc.value(CU + key, "", "unnamed");
    pc.value(CU + "C", "  padded", "x");
    pc.value(CU + "D\\Sub\\Deeper", "V", "x");
    pc.value("HKEY_USERS\\.Default", "V", "1");
  }
  void take(const std::string& spec) {
    plant();
    trace.act(spec, [&] {
      try {
        const std::string answer = spec.starts_with('?')
                                       ? engine.registryHelper.TraceValue(spec.substr(1))
                                       : std::to_string(engine.registryHelper.DeleteTrace(spec));
        trace.tell("answers " + answer + "\n");
      } catch (const RuntimeError& error) {
        trace.tell("fails: " + error.description() + "\n");
      }
    });
  }
};

}  // namespace

TEST_CASE("a trace finds its value by hive, path and name") {
  struct {
    const char* spec;
    const char* found;
  } const rows[] = {
      {"HKEY_CURRENT_USER\\Some-Path\\In+ Value`= Name", "HKEY_CURRENT_USER"},
      {"  hkey_Current_User \\some-path\\in+ Value`=   NAME  ", "HKEY_CURRENT_USER"},
      {"HKEY_CURRENT_USER\\Some-Path\\In+ Value`= a=Name", "HKEY_CURRENT_USER"},  // behind the last "="
      {"HKEY_LOCAL_MACHINE\\Some-Path\\In+ Value`= Name", "HKEY_LOCAL_MACHINE"},
      {"HKEY_USERS\\Some-Path\\In+ Value`= Name", "HKEY_USERS"},
      {"HKEY_CURRENT_CONFIG\\Some-Path\\In+ Value`= Name", "HKEY_CURRENT_CONFIG"},
      {"HKEY_DYN_DATA\\Some-Path\\In+ Value`= Name", "HKEY_DYN_DATA"},
      {"HKEY_CLASSSES_ROOT\\Some-Path\\In+ Value`= Name", "HKEY_CLASSES_ROOT"},
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
    for (const std::string hive : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS",
                                   "HKEY_CLASSES_ROOT", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"})
      pc.pc.value(hive + "\\Some-Path\\In", "Name", hive);
    CHECK(pc.engine.registryHelper.TraceValue(spec) == found);
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

TEST_CASE("what traces remove, and what they leave in force for those behind them") {
  const struct {
    const char* process;
    const char* family;
    std::vector<std::string> specs;  // those with "?" in front are read
  } processes[] = {
      {"A value form takes its value, a key form its key",
       "9x",
       {CU + "A+ Value`= None", CU + "A+ Value`= One", CU + "C+ Value`= ", CU + "A- Key*",
        CU + "None+ Value`= V"}},
      {"From the first key form on a value form wipes the key",
       "9x",
       {CU + "None- Key*", CU + "A+ Value`= One", CU + "A+ Value`= None", CU + "D- Key*"}},
      {"From the first value form on, a read one too, a key form deletes the unnamed value",
       "nt",
       {"?" + CU + "None+ Value`= V", CU + "A- Key*", CU + "C- Key*", CU + "D- Key*"}},
      {"A PC where keys with subkeys stay", "nt", {CU + "D- Key*", CU + "A- Key*"}},
      {"How a line is read",
       "9x",
       {" hkey_current_user \\a - Key*  ", CU + "e-merge\\A- Key*", CU + "A+ Value`= x- Key*"}},
      {"No hive of this name: that of the line before counts",
       "9x",
       {"HKey_Classes_Root\\A- Key*", "?HKEY_LOCAL_MACHINE\\None+ Value`= V", "HKey_Classes_Root\\A- Key*",
        CU + "None- Key*", "HKey_Classes_Root\\A- Key*"}},
      {"No marker: the hive itself, which is wiped once a key form was met",
       "9x",
       {CU + "A- KEY*", "HKEY_USERS\\anything", CU + "None- Key*", "HKEY_USERS\\anything"}},
      {"No signs", "9x", {"", "HKEY_CURRENT_USER", "?HKEY_CURRENT_USER", CU + "A Key*", CU + "A Value`= V"}},
      // On a key that is opened again the walk goes on behind the names that were there, whatever went.
      {"The names of a key are met once each",
       "nt",
       {CU + "C+ Value`= One", CU + "A+ Value`= One", CU + "A+ Value`= Two", CU + "A+ Value`= None",
        CU + "D- Key*"}},
  };
  std::string all;
  for (const auto& process : processes) {
    Traces pc({joined({"family = ", process.family})});
    for (const std::string& spec : process.specs) pc.take(spec);
    all += joined({"===== ", process.process, " (", process.family, ")\n", pc.trace.text});
  }
  checkGolden("traces.txt", all);
}

TEST_CASE("where not all of a key can be seen all names met are tried under it; a walk ends at its limit") {
  Traces pc({"family = nt"});
  pc.pc.onCall = {};
  pc.plant();
  RegistryHelper& helper = pc.engine.registryHelper;
  for (const char* call : {"subkey ", "value "}) pc.pc.fail(call + CU + "D", status::AccessDenied);
  CHECK(helper.DeleteTrace(CU + "A+ Value`= One") == 0);
  CHECK(helper.DeleteTrace(CU + "D- Key*") == -1);
  CHECK(pc.pc.valueNames(CU + "D") == std::vector<std::string>{"One"});
  pc.pc.fail("open " + CU + "C", status::AccessDenied);
  CHECK(helper.DeleteTrace(CU + "C+ Value`= One") == -1);
  CHECK(pc.engine.leftBehind.back().what == CU + "C+ Value`= One");

  WashFixture many;
  for (int name = 0; name < 16003; ++name) many.pc.value(CU + "Many", std::to_string(100000 + name), "x");
  for (const std::size_t seen : {16001U, 16002U, 16003U, 16003U}) {
    many.engine.registryHelper.DeleteTrace(CU + "Many+ Value`= " + std::to_string(99999 + seen - 16001));
    CHECK(many.engine.registryHelper.lstValue.size() == seen);
  }
}
