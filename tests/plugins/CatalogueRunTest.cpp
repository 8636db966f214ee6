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
const std::string Decoy = " Decoy";

const Catalogue& builtIn() {
  static const Catalogue catalogue = builtInCatalogue();
  return catalogue;
}

// The rows whose traces do what they seem to say.
const std::vector<CatalogueRow>& ordinaryRows() {
  static const std::vector<CatalogueRow> rows = [] {
    std::vector<CatalogueRow> all = builtIn().rows();
    const std::set<std::string> odd{"GetRight 3.x", "Real Player 7.x, 8.x and GT2", "WinAce Archiver 1.x",
                                    "Windows Recent Network Drive List"};
    std::erase_if(all, [&](const CatalogueRow& row) { return odd.contains(row.name); });
    return all;
  }();
  return rows;
}

// The key with its hive.
std::string keyOf(const Trace& trace) {
  return trace.text.substr(0, trace.text.find('\\') + 1) + trace.path;
}

// The file that an action removes.
std::string fileOf(const Action& action) {
  const std::string base = action.base == Action::Base::AppData   ? "C:\\User\\"
                           : action.base == Action::Base::Windows ? "C:\\WINDOWS\\"
                                                                  : "C:\\Installed\\";
  std::string path = base;
  for (const char c : action.path) path += c == '*' ? "any" : std::string(1, c == '?' ? 'q' : c);
  return path;
}

// Files that an action must leave: one below, and one of a longer name where not all files go.
std::vector<std::string> decoysOf(const Action& action) {
  const std::string file = fileOf(action);
  std::vector<std::string> decoys{std::string(withoutLastPathPart(file)) + "\\Sub\\" +
                                  std::string(lastPathPart(file))};
  if (!action.path.ends_with("*.*")) decoys.push_back(file + "x.none");
  return decoys;
}

// Runs rows in one process on an NT PC, where a key with subkeys stays, and knows what must be left.
class CatalogueWash : public WashFixture {
 public:
  CatalogueWash() : WashFixture({"family = nt"}) { pc.shellFolder("AppData", "C:\\User"); }

  void seed(const CatalogueRow& row) {
    for (const Action& action : row.actions) {
      if (action.kind != Action::Kind::Trace) {
        pc.file(fileOf(action));
        for (const std::string& decoy : decoysOf(action)) pc.file(decoy);
      }
      if (action.trace.text.empty()) continue;
      const Trace& trace = action.trace;
      pc.value(keyOf(trace), trace.keyForm ? "1" : trace.valueName, "C:\\Installed");
      pc.value(keyOf(trace), "Decoy", "x");
      if (trace.keyForm) pc.value(keyOf(trace) + "\\Sub", "1", "trace");
      pc.value(keyOf(trace) + Decoy, "1", "x");
    }
  }

  void run(const CatalogueRow& row) {
    RunStandardPlugin(engine, builtIn(), row.name);
    for (const Action& action : row.actions) {
      if (action.kind != Action::Kind::Trace) continue;
      const Trace& trace = action.trace;
      keyFormSeen_ |= trace.keyForm;
      if (keyFormSeen_) wiped_.insert(folded(keyOf(trace)));
    }
  }

  void check(const CatalogueRow& row) {
    for (const Action& action : row.actions) {
      if (action.kind == Action::Kind::Trace) {
        checkTrace(action.trace);
      } else {
        CHECK_FALSE_MESSAGE(pc.hasFile(fileOf(action)), fileOf(action));
        for (const std::string& decoy : decoysOf(action)) CHECK_MESSAGE(pc.hasFile(decoy), decoy);
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

  void checkTrace(const Trace& trace) {
    CAPTURE(trace.text);
    if (!trace.keyForm) CHECK_FALSE(pc.hasValue(keyOf(trace), trace.valueName));
    // From the first key form on a value takes its whole key along.
    CHECK(pc.hasKey(keyOf(trace)) == (!isWiped(keyOf(trace)) || hasNamedBelow(keyOf(trace))));
    CHECK(pc.hasValue(keyOf(trace), "Decoy") == !isWiped(keyOf(trace)));
    // What stands beside a key goes only as a subkey of another one that is wiped.
    CHECK(pc.hasKey(keyOf(trace) + Decoy) == !isWiped(withoutLastPathPart(keyOf(trace))));
  }

  bool keyFormSeen_ = false;
  std::set<std::string> wiped_;  // keys, in capitals
};

}  // namespace

TEST_CASE("each row in a fresh process removes its traces and leaves the decoys") {
  for (const CatalogueRow& row : ordinaryRows()) {
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
  for (const CatalogueRow& row : ordinaryRows()) wash.seed(row);
  for (const CatalogueRow& row : ordinaryRows()) wash.run(row);
  for (const CatalogueRow& row : ordinaryRows()) wash.check(row);
  CHECK(wash.progress().lblCompleted.Caption == "80");
}

TEST_CASE("the rows whose traces do not do what they seem to say, on NT") {
  struct Odd {
    const char* row;
    bool afterKeyForm;
    std::vector<std::string> gone;  // keys of the current user unless they name their hive
    std::vector<std::string> kept;
  };
  const std::string clips = "Software\\RealNetworks\\RealPlayer\\7.0\\Preferences\\MostRecentClips1";
  const std::string getRight = "Software\\HeadLight\\GetRight\\";
  const std::string winAce = "software\\e-merge\\winace\\1.0\\";
  const Odd cases[] = {
      // The correct spelling of the classes' hive: the hive before it.
      {"Real Player 7.x, 8.x and GT2", false, {clips}, {"HKEY_CLASSES_ROOT\\" + clips}},
      // A hyphen ends the key's path.
      {"WinAce Archiver 1.x", false, {"Software\\E"}, {winAce + "favorites", winAce + "copy"}},
      // A marker in capitals opens the hive itself: harmless until a key form has run. What has subkeys stays.
      {"Windows Recent Network Drive List", false, {}, {"Network\\Recent", "Leaf"}},
      {"Windows Recent Network Drive List", true, {"Leaf"}, {"Network\\Recent"}},
      {"GetRight 3.x",
       false,
       {getRight + "FileQueue", getRight + "ResumeServers", "Leaf"},
       {getRight + "TypedURLS", getRight + "Other"}},
  };
  for (const Odd& one : cases) {
    CAPTURE(one.row);
    WashFixture wash({"family = nt"});
    const auto path = [](const std::string& key) {
      return key.starts_with("HKEY") ? key : CurrentUser + key;
    };
    for (const auto* keys : {&one.gone, &one.kept}) {
      for (const std::string& key : *keys) wash.pc.value(path(key), "", "trace");
    }
    if (one.afterKeyForm) RunStandardPlugin(wash.engine, builtIn(), "Google Toolbar");
    RunStandardPlugin(wash.engine, builtIn(), one.row);
    for (const std::string& key : one.gone) CHECK_FALSE_MESSAGE(wash.pc.hasKey(path(key)), key);
    for (const std::string& key : one.kept) CHECK_MESSAGE(wash.pc.hasValue(path(key), ""), key);
  }
}
