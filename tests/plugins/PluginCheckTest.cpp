#include <doctest/doctest.h>

#include <random>

#include "base/Text.h"
#include "plugins/CustomPluginRun.h"
#include "plugins/PluginCheck.h"
#include "plugins/Plugins.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

using enum Meaning::Verdict;
using Texts = std::vector<std::string>;

const std::string Base = "C:\\Program Files\\Zubrane\\Plugins\\P";
const std::string CU = "HKEY_CURRENT_USER\\";

// A PC on which every entry that can work finds something, for many plugins one after the other.
struct CheckPc {
  TestPc pc;
  Options options;

  void seed() {
    for (const char* name : {"C:\\T\\a.tmp", "C:\\T\\S\\b.tmp", "C:\\T\\S\\c.txt", "C:\\a.tmp"})
      pc.file(name);
    for (const char* hive : {"HKEY_CURRENT_USER\\", "HKEY_CLASSES_ROOT\\", "HKEY_USERS\\"}) {
      for (const char* key : {"K", "K\\Sub", "e", "e-k\\K", "e+k", "K Key*"}) {
        pc.value(std::string(hive) + key, "n", "x");
        pc.value(std::string(hive) + key, "", "x");
      }
    }
  }
  // What the run of a plugin takes, a line each.
  Texts removedBy(PluginFile which, std::string_view lines) {
    seed();
    pc.file(Base + ".zb1", which == PluginFile::Files ? lines : "");
    pc.file(Base + ".zb2", which == PluginFile::Registry ? lines : "");
    const std::string before = pc.snapshot();
    FakeOwner owner;
    Engine engine(pc.platform(), options);
    engine.owner = &owner;
    RunCustomPlugin(engine, Plugins(engine), "P");
    Texts removed;
    std::string diff = pc.diffSince(before);
    for (std::size_t end = 0; diff.starts_with("- "); diff.erase(0, end + 1)) {
      end = diff.find('\n');
      const std::string what = diff.substr(2, end - 2);  // a word for the kind, then the path
      if (!contains(what, "wininit.ini")) removed.push_back(what.substr(what.find(' ') + 1));
    }
    return removed;
  }
  // The check of each of the lines, a fresh plugin's.
  std::vector<CheckedLine> check(PluginFile which, const Texts& lines) {
    Engine engine(pc.platform(), options);
    PluginCheck check(engine);
    check.begin(which);
    std::vector<CheckedLine> checked;
    for (const std::string& line : lines) checked.push_back(check.next(line));
    return checked;
  }
};

Texts split(std::string_view text, std::string_view sign) {
  Texts parts;
  for (auto end = text.find(sign); end != text.npos; end = text.find(sign)) {
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end + sign.size());
  }
  if (!text.empty() || sign != "\n") parts.emplace_back(text);
  return parts;
}

std::string between(const std::string& text, std::string_view begin,
                    std::initializer_list<const char*> ends) {
  const auto start = text.find(begin);
  if (start == std::string::npos) return "none";
  auto part = text.substr(start + begin.size());
  for (const char* end : ends) part = part.substr(0, part.find(end));
  return part;
}

// Paths as the PC finds them: capitals, and no empty part, none that ends in a blank.
std::string plainPath(std::string path) {
  path = upperAscii(path);
  for (const char* twice : {"\\\\", " \\"}) {
    for (auto place = path.find(twice); place != path.npos; place = path.find(twice))
      path.replace(place, 2, "\\");
  }
  if (path.starts_with('\\')) path.insert(0, "C:");
  return std::string(trim(path));
}

// What was removed is what the meaning names, and what it names is gone.
bool explains(const std::string& meaning, const std::string& removed) {
  const std::string path = plainPath(removed);
  if (contains(meaning, "current folder")) return true;
  if (contains(meaning, "the file "))
    return path.starts_with(plainPath(between(meaning, "the file ", {" ("})) + " ");
  if (contains(meaning, "the folder ")) {
    const std::string folder = plainPath(between(meaning, " of the folder ", {" and ", " ("}));
    const bool below = contains(meaning, "all folders below");
    return path.starts_with(folder) && (below || !contains(path.substr(folder.size()), "\\"));
  }
  if (contains(meaning, "the hive "))
    return path.starts_with(between(meaning, "the hive ", {" itself"}) + "\\");
  const std::string key = upperAscii(between(meaning, "the key ", {" with", "; ", ": "}));
  if (!path.starts_with(key)) return false;
  return contains(meaning, "its values and subkeys") ||
         contains(removed, "\"" + between(meaning, "Removes the value ", {" of "}) + "\"") ||
         contains(meaning, "the unnamed value");
}

}  // namespace

// Each round fills a PC and washes it; under Wine a file costs a hundred times what it does here, and the rules are the same.
#ifdef _WIN32
constexpr int RandomRounds = 40;
#else
constexpr int RandomRounds = 400;
#endif

TEST_CASE("what the check says of random lines is what a run does with them") {
  const Texts files{"C:\\",
                    "C:\\T",
                    "\\",
                    "\\",
                    "S",
                    "\\S\\",
                    "a.tmp",
                    "\\a.tmp",
                    "b.tmp",
                    "*",
                    "?",
                    "\\*.tmp",
                    "\\*.*",
                    ">plus subdirectories<",
                    " >PLUS subdirectories<",
                    "x",
                    " ",
                    "|",
                    "<"};
  const Texts hives{
      "HKEY_CURRENT_USER", "HKey_Users", "HKEY_CLASSES_ROOT", "HKCU", " hkey_current_user ", ""};
  const Texts parts{"K", "K", "Sub", "e", "e-k", "e+k", "\\", " ", "\\"};
  const Texts tails{"- Key*",      "- Key* ", "- KEY*", " Key*", "+ Value`= n", "+ Value`= x=n",
                    "+ value`= n", " Value`", "-",      "",      "+ Value`= "};
  std::mt19937 random(20010905);
  const auto pick = [&](const Texts& from) { return from[random() % from.size()]; };
  CheckPc pc;
  for (int round = 0; round < RandomRounds; ++round) {
    const auto which = round % 2 == 0 ? PluginFile::Files : PluginFile::Registry;
    Texts lines;
    std::string line;
    if (which == PluginFile::Files) {
      line = pick({"C:\\", "C:\\T", "T", ""});
      for (auto count = random() % 4; count < 4; ++count) line += pick(files);
    } else {
      if (random() % 3 == 0) lines.push_back("HKEY_CURRENT_USER\\None- Key*");
      line = pick(hives) + pick({"\\", "\\", "\\", ""});
      for (auto count = random() % 3; count < 3; ++count) line += pick(parts) + pick({"", "", "\\"});
      line += pick(tails) + pick({"", "", "", pick(tails)});
    }
    lines.push_back(line);
    CAPTURE(line);
    const auto removed = pc.removedBy(which, lines.size() == 1 ? line : lines[0] + "\r\n" + line);
    const auto checked = pc.check(which, lines).back();
    CAPTURE(checked.meaning);
    if (checked.verdict == Never) CHECK(removed.empty());
    for (const std::string& gone : removed) CHECK_MESSAGE(explains(checked.meaning, gone), gone);
    if (removed.empty() && checked.verdict == Plain) {
      const std::string file = between(checked.meaning, "Removes the file ", {});
      if (file == plainPath(file)) CHECK_FALSE(pc.pc.hasFile(file));
      CHECK_FALSE(pc.pc.hasKey(between(checked.meaning, "Removes the key ", {" with"})));
    }
  }
}

// F or R, the verdict, the lines with " & " between, and what is said of the last one, where W stands for the text on
// keys that a wash has wiped, and A for that on an entry above.
constexpr std::string_view Said = R"(
F   c:\t\a.tmp |Removes the file C:\T\A.TMP
F   C:/T/a.tmp|Removes the file C:/T/A.TMP
F   |Does nothing
F   C:\*.tmp|Removes the files *.TMP of the folder C:\
F   C:\T\*.* >plus subdirectories<|Removes the files *.* of the folder C:\T\ and of all folders below it
F   C:\T\*.*>plus subdirectories<x|Removes the files *.* of the folder C:\T\ and all folders below it
F   no entries.|Ends the list
F ? a.tmp|Removes the file A.TMP (looked for from the current folder)
F ? C:\a:b|Removes the file C:\A:B (a second colon names a stream of a file)
F ! *.tmp|Stops the plugin: a pattern needs a folder and a backslash before it
F ! *.tmp & C:\a|Is not read: the plugin has stopped above
F ! no entries. & C:\a|Is not read: the list has ended above
F ! *.*|Never works: an entry of three characters or less is not split into folder and pattern
F ! C:\T?MP\|Never works: only the part behind the last backslash may hold ? or *
F ! C:\T\a.tmp >plus subdirectories<|Never works: the subdirectories marker counts only behind a pattern with ? or *
F ! C:\T\ >plus subdirectories<*|Never works: no pattern stands behind the last backslash
F ! C:\T\|Never works: it names no file
F ! C:\a<b|Never works: it holds a character that no file name can hold
F ! C:\a	b|Never works: it holds a character that no file name can hold
R   HKey_Users\K- Key*|Removes the key HKEY_USERS\K with its values and subkeys
R   HKEY_CLASSSES_ROOT\K+ Value`= n|Removes the value n of the key HKEY_CLASSES_ROOT\KW
R   HKEY_USERS\K+ Value`= |Removes the unnamed value of the key HKEY_USERS\KW
R   HKEY_USERS\A- Key* & HKEY_USERS\K+ Value`= |Removes the key HKEY_USERS\KA
R ? HKCU\K- Key*|Removes the key K of the hive that came before with its values and subkeys (no hive has this name, and the one of the entry before counts)
R ? HKEY_USERS\K- KEY*|Removes the unnamed value of the hive HKEY_USERS itselfW (the marker must read Key* or Value`, in this case)
R ? HKEY_USERS\A- Key* & HKEY_USERS\K|Removes the hive HKEY_USERS itselfA (it has no marker "- Key*" or "+ Value`= ")
R ? HKEY_USERS\e-k\K- Key*|Removes the key HKEY_USERS\e with its values and subkeys (the key's path ends at its first hyphen)
R ? HKEY_USERS\e+k+ Value`= n|Removes the value n of the key HKEY_USERS\eW (the key's path ends at its first plus sign)
R ? HKEY_USERS\K+ Value`= a=b|Removes the value b of the key HKEY_USERS\KW (the value's name begins behind the last equals sign)
R ? HKEY_USERS\K+ Value`= n- Key*|Removes the key HKEY_USERS\K with its values and subkeys (it has both markers)
R ? HKEY_USERS\- Key*|Removes the hive HKEY_USERS itself with its values and subkeys (no key stands between the hive and the marker)
R ? HKEY_USERS\K\- Key*|Removes the key HKEY_USERS\K with its values and subkeys (a part of the path is empty, which not every Windows passes over)
R ? HKEY_USERS\K + Value`= n|Removes the value n of the key HKEY_USERS\K W (a blank at an end of the path counts as part of a key's name)
R ? No entries.|Stops the plugin: only capitals, NO ENTRIES., end this list; the plugin is not counted
R ! K- Key*|Stops the plugin: a registry entry needs a backslash behind the hive
R ! HKEY_USERS\K Key*|Stops the plugin: the marker needs its sign, "- Key*" or "+ Value`= "
)";

TEST_CASE("what the check says of an entry") {
  CheckPc pc;
  for (const std::string& row : split(Said.substr(1), "\n")) {
    const Texts lines = split(row.substr(4, row.find('|') - 4), " & ");
    std::string meaning = row.substr(row.find('|') + 1);
    for (const auto& [sign, text] :
         {std::pair{"W", "; once the wash has wiped any key, all of it"},
          std::pair{"A", " with its values and subkeys: a key entry stands above"}}) {
      for (const char* end : {"K", "K ", "e", "itself"}) {
        const auto place = meaning.find(std::string(end) + sign);
        if (place != meaning.npos) meaning.replace(place + std::string_view(end).size(), 1, text);
      }
    }
    const CheckedLine checked =
        pc.check(row[0] == 'F' ? PluginFile::Files : PluginFile::Registry, lines).back();
    CHECK(checked.meaning == meaning);
    CHECK_MESSAGE(" ?!"[static_cast<int>(checked.verdict)] == row[2], row);
    CHECK(checked.number == static_cast<int>(lines.size()));
  }
}
