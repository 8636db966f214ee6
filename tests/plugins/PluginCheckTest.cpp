#include <doctest/doctest.h>

#include <algorithm>

#include "base/Text.h"
#include "plugins/PluginCheck.h"
#include "support/Golden.h"
#include "support/WashFixture.h"

namespace zub {
std::span<const EmbeddedFile> wordFiles();
}

using namespace zub;

// Each line is a list of its own, of files (F) or of registry entries (R), its entries with " & " between.
TEST_CASE("what the check says of an entry") {
  WashFixture pc;
  std::string said;
  std::string_view rows = std::ranges::find(wordFiles(), "entries.txt", &EmbeddedFile::name)->text();
  while (!rows.empty()) {
    const std::string_view row = takeLine(rows);
    PluginCheck check(pc.engine);
    check.begin(row[0] == 'F' ? PluginFile::Files : PluginFile::Registry);
    std::string entries(row.substr(2));
    for (auto end = entries.find(" & "); end != entries.npos; end = entries.find(" & "))
      entries.replace(end, 3, "\n");
    said += row[0] == 'F' ? "Files\n" : "Registry\n";
    std::string_view rest = entries;
    do {
      const CheckedLine line = check.next(takeLine(rest));
      said += joined({"  ", std::to_string(line.number), " [", line.text, "]\n    ",
                      std::string_view(" ?!").substr(static_cast<std::size_t>(line.verdict), 1), line.meaning,
                      "\n"});
    } while (!rest.empty());
  }
  checkGolden("check.txt", said);
}

TEST_CASE("a list that has ended goes on with the next file") {
  WashFixture pc;
  PluginCheck check(pc.engine);
  CHECK(check.readText("no entries.\nC:\\b", PluginFile::Files).back().verdict == Meaning::Verdict::Never);
  CHECK(check.readText("HKEY_USERS\\a- Key*", PluginFile::Registry).back().verdict ==
        Meaning::Verdict::Plain);
}
