// Every row of the built-in catalogue on a PC that holds just what the row names, with a decoy beside each
// trace: by itself in a fresh process, and all rows in one.
#include <doctest/doctest.h>

#include <set>

#include "base/Text.h"
#include "plugins/Catalogue.h"
#include "plugins/StandardPluginRun.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string CurrentUser = "HKEY_CURRENT_USER\\";
const std::string ClassesRoot = "HKEY_CLASSES_ROOT\\";
const std::string Decoy = " Decoy";

// The rows whose traces do not do what they seem to say have tests of their own.
bool isOrdinary(const CatalogueRow& row) {
  for (const char* name : {"GetRight 3.x", "Real Player 7.x, 8.x and GT2", "WinAce Archiver 1.x",
                           "Windows Recent Network Drive List"}) {
    if (row.name == name) return false;
  }
  return true;
}

const Catalogue& builtIn() {
  static const Catalogue catalogue = builtInCatalogue();
  return catalogue;
}

struct Trace {
  std::string key;  // with the hive
  std::string value;
  bool keyForm;
};

Trace traceOf(const std::string& text) {
  const auto place = std::min(text.find("- Key*"), text.find("+ Value`= "));
  REQUIRE(place != std::string::npos);
  Trace trace{text.substr(0, place), "", text[place] == '-'};
  if (!trace.keyForm) trace.value = text.substr(place + std::string_view("+ Value`= ").size());
  return trace;
}

// Runs rows in one process on an NT PC, where a key with subkeys stays, and knows what must be left.
class CatalogueWash : public WashFixture {
 public:
  CatalogueWash() : WashFixture({"family = nt"}) { pc.shellFolder("AppData", "C:\\User\\Application Data"); }

  void seed(const CatalogueRow& row) {
    for (const CatalogueAction& action : row.actions) {
      if (action.kind == CatalogueAction::Kind::Trace) {
        seedTrace(traceOf(action.trace));
      } else {
        seedFiles(action);
      }
    }
  }

  void run(const CatalogueRow& row) {
    RunStandardPlugin(engine, builtIn(), row.name);
    for (const CatalogueAction& action : row.actions) {
      if (action.kind != CatalogueAction::Kind::Trace) continue;
      const Trace trace = traceOf(action.trace);
      keyFormSeen_ |= trace.keyForm;
      if (keyFormSeen_) wiped_.insert(folded(trace.key));
    }
  }

  void check(const CatalogueRow& row) {
    for (const CatalogueAction& action : row.actions) {
      CAPTURE(action.trace);
      CAPTURE(action.path);
      if (action.kind == CatalogueAction::Kind::Trace) {
        checkTrace(traceOf(action.trace));
      } else {
        checkFiles(action);
      }
    }
  }

 private:
  std::string folded(std::string_view key) const { return engine.pc.codePage.upper(key); }
  bool isWiped(std::string_view key) const { return wiped_.contains(folded(key)); }
  // Such a key cannot go on NT when its turn comes; the values do.
  bool hasNamedBelow(std::string_view key) const {
    const std::string parent = folded(key) + '\\';
    const auto next = wiped_.lower_bound(parent);
    return next != wiped_.end() && next->starts_with(parent);
  }

  void seedTrace(const Trace& trace) {
    pc.value(trace.key, trace.keyForm ? "1" : trace.value, "trace");
    pc.value(trace.key, "Decoy", "x");
    if (trace.keyForm) pc.value(trace.key + "\\Sub", "1", "trace");
    pc.value(trace.key + Decoy, "1", "x");
  }

  void checkTrace(const Trace& trace) {
    if (!trace.keyForm) CHECK_FALSE(pc.hasValue(trace.key, trace.value));
    // From the first key form on a value takes its whole key along.
    CHECK(pc.hasKey(trace.key) == (!isWiped(trace.key) || hasNamedBelow(trace.key)));
    CHECK(pc.hasValue(trace.key, "Decoy") == !isWiped(trace.key));
    // What stands beside a key goes only as a subkey of another one that is wiped.
    CHECK(pc.hasKey(trace.key + Decoy) == !isWiped(withoutLastPathPart(trace.key)));
  }

  std::string baseOf(const CatalogueAction& action) {
    if (action.base == CatalogueAction::Base::AppData) return "C:\\User\\Application Data\\";
    if (action.base == CatalogueAction::Base::Windows) return "C:\\WINDOWS\\";
    const Trace trace = traceOf(action.trace);
    pc.value(trace.key, trace.value, "C:\\Installed");
    return "C:\\Installed\\";
  }

  // The files that must go, and those that must not.
  std::pair<std::vector<std::string>, std::vector<std::string>> filesOf(const CatalogueAction& action) {
    const std::string path = baseOf(action) + action.path;
    if (action.kind == CatalogueAction::Kind::File) return {{path}, {path + "x"}};
    std::string name;
    for (const char c : action.pattern) {
      if (c == '*') name += "any";
      if (c == '?') name += 'q';
      if (c != '*' && c != '?') name += c;
    }
    std::vector<std::string> kept{path + "\\Sub\\" + name, path + "x\\" + name};
    if (action.pattern != "*.*") kept.push_back(path + "\\" + name + "x.none");
    return {{path + "\\" + name}, kept};
  }

  void seedFiles(const CatalogueAction& action) {
    const auto [gone, kept] = filesOf(action);
    for (const std::string& name : gone) pc.file(name);
    for (const std::string& name : kept) pc.file(name);
  }

  void checkFiles(const CatalogueAction& action) {
    const auto [gone, kept] = filesOf(action);
    for (const std::string& name : gone) CHECK_FALSE_MESSAGE(pc.hasFile(name), name);
    for (const std::string& name : kept) CHECK_MESSAGE(pc.hasFile(name), name);
  }

  bool keyFormSeen_ = false;
  std::set<std::string> wiped_;  // keys, in capitals
};

}  // namespace

TEST_CASE("each row in a fresh process removes its traces and leaves the decoys") {
  for (const CatalogueRow& row : builtIn().rows()) {
    if (!isOrdinary(row)) continue;
    CAPTURE(row.name);
    CatalogueWash wash;
    wash.seed(row);
    wash.run(row);
    wash.check(row);
    CHECK(wash.progress().lblCompleted.Caption == "1");
  }
}

TEST_CASE("all rows in one process: from the first key form on each value takes its whole key along") {
  CatalogueWash wash;
  for (const CatalogueRow& row : builtIn().rows()) {
    if (isOrdinary(row)) wash.seed(row);
  }
  for (const CatalogueRow& row : builtIn().rows()) {
    if (isOrdinary(row)) wash.run(row);
  }
  for (const CatalogueRow& row : builtIn().rows()) {
    CAPTURE(row.name);
    if (isOrdinary(row)) wash.check(row);
  }
  CHECK(wash.progress().lblCompleted.Caption == "80");
}

namespace {

// A row by itself in a fresh process.
struct RowWash : WashFixture {
  using WashFixture::WashFixture;
  void run(const char* name) { RunStandardPlugin(engine, builtIn(), name); }
};

const std::string Clips = "Software\\RealNetworks\\RealPlayer\\7.0\\Preferences\\MostRecentClips1";

}  // namespace

TEST_CASE("the same row takes one value in a fresh process and the whole key after a key form") {
  const std::string key = CurrentUser + "Software\\Nico Mak Computing\\WinZip\\filemenu";
  for (const bool fresh : {true, false}) {
    RowWash wash;
    wash.pc.value(key, "filemenu1", "a");
    wash.pc.value(key, "Options", "a");
    if (!fresh) wash.run("Google Toolbar");
    wash.run("WinZip 7.x and 8.x");
    CHECK_FALSE(wash.pc.hasValue(key, "filemenu1"));
    CHECK(wash.pc.hasValue(key, "Options") == fresh);
  }
}

TEST_CASE("the correct spelling of the classes hive works on the hive before it") {
  RowWash wash;
  wash.pc.value(CurrentUser + Clips, "", "clip");
  wash.pc.value(ClassesRoot + Clips, "", "clip");
  wash.run("Real Player 7.x, 8.x and GT2");
  CHECK_FALSE(wash.pc.hasKey(CurrentUser + Clips));
  CHECK(wash.pc.hasKey(ClassesRoot + Clips));
}

TEST_CASE("a hyphen in a key's path ends it") {
  RowWash wash;
  for (const char* key :
       {"software\\e-merge\\winace\\1.0\\favorites", "software\\e-merge\\winace\\1.0\\copy"}) {
    wash.pc.value(CurrentUser + key, "1", "a");
  }
  const std::string before = wash.pc.snapshot();
  wash.run("WinAce Archiver 1.x");
  CHECK(wash.pc.diffSince(before) == "");
  wash.pc.value(CurrentUser + "Software\\E", "1", "a");
  wash.run("WinAce Archiver 1.x");
  CHECK_FALSE(wash.pc.hasKey(CurrentUser + "Software\\E"));
  CHECK(wash.pc.hasKey(CurrentUser + "software\\e-merge\\winace\\1.0\\copy"));
}

TEST_CASE("a marker in capitals opens the hive itself: harmless until a key form has run") {
  const char* row = "Windows Recent Network Drive List";
  RowWash wash({"family = nt"});
  wash.pc.value(CurrentUser + "Network\\Recent", "1", "a");
  wash.pc.value("HKEY_CURRENT_USER", "Name", "a");
  wash.pc.key(CurrentUser + "Leaf");
  const std::string before = wash.pc.snapshot();
  wash.run(row);
  CHECK(wash.pc.diffSince(before) == "");

  wash.run("Google Toolbar");
  wash.run(row);
  CHECK_FALSE(wash.pc.hasValue("HKEY_CURRENT_USER", "Name"));
  CHECK_FALSE(wash.pc.hasKey(CurrentUser + "Leaf"));
  CHECK(wash.pc.hasValue(CurrentUser + "Network\\Recent", "1"));
}

TEST_CASE("GetRight's last trace tries the whole hive, and what has subkeys stays on NT") {
  const std::string key = CurrentUser + "Software\\HeadLight\\GetRight\\";
  RowWash wash({"family = nt"});
  for (const char* list : {"FileQueue", "ResumeServers", "TypedURLS", "Other"}) {
    wash.pc.value(key + list, "1", "a");
  }
  wash.run("GetRight 3.x");
  CHECK_FALSE(wash.pc.hasKey(key + "FileQueue"));
  CHECK_FALSE(wash.pc.hasKey(key + "ResumeServers"));
  CHECK(wash.pc.hasValue(key + "TypedURLS", "1"));
  CHECK(wash.pc.hasValue(key + "Other", "1"));
}

TEST_CASE("on the 9x family a key's subkeys go with it, however deep") {
  const std::string key = CurrentUser + "Software\\Google\\NavClient\\1.1\\";
  for (const bool nt : {false, true}) {
    RowWash wash({nt ? "family = nt" : "family = 9x"});
    wash.pc.value(key + "History\\a\\b\\c", "1", "a");
    wash.pc.value(key + "History\\leaf", "1", "a");
    wash.pc.value(key + "History", "1", "a");
    wash.pc.value(key + "Options", "1", "a");
    wash.run("Google Toolbar");
    CHECK(wash.pc.hasKey(key + "History\\a\\b\\c") == nt);
    CHECK_FALSE(wash.pc.hasValue(key + "History", "1"));
    CHECK_FALSE(wash.pc.hasKey(key + "History\\leaf"));
    CHECK(wash.pc.hasKey(key + "Options"));
  }
}
