#include <doctest/doctest.h>

#include <algorithm>

#include "base/Embedded.h"
#include "base/Text.h"
#include "plugins/Catalogue.h"
#include "plugins/StandardPluginRun.h"
#include "support/WashFixture.h"

namespace zub {
std::span<const EmbeddedFile> wordFiles();
}

using namespace zub;

namespace {

std::string_view file(std::string_view name) {
  return std::ranges::find(wordFiles(), name, &EmbeddedFile::name)->text();
}

std::vector<std::string> told(const CatalogueRow& row) {
  std::vector<std::string> lines;
  for (const Action& action : row.actions) {
    const int base = static_cast<int>(action.base);
    lines.push_back(joined({std::to_string(base), action.trace.text, "|", action.path}));
  }
  return lines;
}

std::string failureOf(std::string_view text) {
  try {
    Catalogue::parse(text);
  } catch (const CatalogueError& error) {
    return error.what();
  }
  return "none";
}

}  // namespace

TEST_CASE("the catalogue holds the names that must be there, in their order, and what is known of them") {
  const Catalogue catalogue = builtInCatalogue();
  std::string names;  // each is the name of a saved tick
  for (const CatalogueRow& row : catalogue.rows()) {
    names += row.name + "\n";
    const bool removesAll = row.name == "Outlook Express 5.x Mail and News";
    CHECK_MESSAGE((removesAll || row.description.starts_with("This plugin cleans ")), row.name);
  }
  CHECK(names == file("names.txt"));

  const Catalogue certain = Catalogue::parse(file("known.txt"));
  for (const CatalogueRow& known : certain.rows()) {
    CAPTURE(known.name);
    const CatalogueRow* row = catalogue.find(known.name);
    REQUIRE(row != nullptr);
    if (known.description.size() > 1) CHECK(row->description == known.description);
    auto lines = told(*row);
    if (known.description == "-") {
      std::erase_if(lines,
                    [all = told(known)](const auto& line) { return std::ranges::count(all, line) == 0; });
    }
    CHECK(lines == told(known));
  }
}

TEST_CASE("all actions of the catalogue do what they seem to say, but for those that are odd on purpose") {
  WashFixture wash;
  wash.pc.shellFolder("AppData", "C:\\User");
  wash.pc.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Symantec\\InstalledApps", "NAV", "C:\\NAV");
  wash.pc.value("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\VisualStudio\\6.0", "InstallDir", "C:\\VS");
  std::string odd;
  const Catalogue catalogue = builtInCatalogue();
  for (const CatalogueRow& row : catalogue.rows()) {
    const auto meanings = describeStandardPlugin(wash.engine, row);
    const auto count = std::ranges::count(meanings, Meaning::Verdict::Plain, &Meaning::verdict);
    const auto rest = meanings.size() - static_cast<std::size_t>(count);
    if (rest != 0) odd += row.name + " " + std::to_string(rest) + "; ";
  }
  CHECK(odd ==
        "GetRight 3.x 1; Real Player 7.x, 8.x and GT2 22; WinAce Archiver 1.x 3; "
        "Windows Recent Network Drive List 1; ");
}

TEST_CASE("a row warns of a loss that is more than a list") {
  const auto warns = [](const char* text) { return CatalogueRow{"A", text, {}}.warns(); };
  CHECK(warns("It removes ALL mail."));
  CHECK(warns("Do not use this plugin if you want to keep it."));
  CHECK_FALSE(warns("This plugin cleans INSTALL and all logs."));
}

TEST_CASE("ranges stand where they like in a trace; remarks and line ends do not count") {
  const auto catalogue = Catalogue::parse(
      "# A remark.\r\n\r\n[A]\r\nabout\tText | {1..2}\r\n  trace  HKEY_USERS\\Clip{9..11}- Key*  \r\n"
      "file HKEY_USERS\\A+ Value`= B | x y.log\n"
      "trace hkey_Users\\A+ Value`= File{0..0}");
  const auto& row = catalogue.rows().front();
  CHECK(row.description == "Text | {1..2}");
  CHECK(told(row) == std::vector<std::string>{"0HKEY_USERS\\Clip9- Key*|", "0HKEY_USERS\\Clip10- Key*|",
                                              "0HKEY_USERS\\Clip11- Key*|",
                                              "3HKEY_USERS\\A+ Value`= B|x y.log",
                                              "0hkey_Users\\A+ Value`= File0|"});
  CHECK(catalogue.find("a") == nullptr);
}

TEST_CASE("a malformed catalogue is refused with line and reason") {
  const std::string row = "[A]\nabout a\n";
  const std::string marker = "line 3: a trace ends in \"- Key*\", or in \"+ Value`= \" and a name";
  const std::string range = "line 3: a range is two numbers from 0 to 999, the lower one first";
  const std::pair<std::string, std::string> cases[] = {
      {row + "fille windows | a", "line 3: unknown word \"fille\""},
      {"trace HKEY_USERS\\a- Key*", "line 1: no name in square brackets stands before this line"},
      {"[]", "line 1: a name stands in square brackets"},
      {"[Ab", "line 1: a name stands in square brackets"},
      {"\n[A]\n[B]\nabout b", "line 2: the description is missing"},
      {"[A]\nabout " + std::string(301, 'x'), "line 2: the description is longer than 300 characters"},
      {row + "\n[B]\nabout b\nfile windows | b", "line 1: there is no action"},
      {row + "file windows | a\n[A]", "line 4: this name is there twice"},
      {row + "folder appdata | a", "line 3: a part between | is missing"},
      {row + "file window | a", "line 3: unknown place \"window\""},
      {row + "trace HKCU\\a- Key*", "line 3: a trace begins with the name of a hive and a backslash"},
      {row + "trace HKEY_USERS\\a", marker},
      {row + "trace HKEY_USERS\\a+ value`= a", marker},
      {row + "trace HKEY_USERS\\{1..2}{1..2}- Key*", "line 3: a trace holds one range at most"},
      {row + "trace HKEY_USERS\\{2..1}- Key*", range},
      {row + "trace HKEY_USERS\\{1..1000}- Key*", range},
      {"[A]\nabout " + std::string(300, 'x') + "\nfile windows | a", "none"},
  };
  for (const auto& [text, failure] : cases) CHECK(failureOf(text) == failure);
}
