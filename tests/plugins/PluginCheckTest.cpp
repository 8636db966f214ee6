#include <doctest/doctest.h>

#include "plugins/PluginCheck.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

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

std::vector<std::string> split(std::string_view text, std::string_view sign) {
  std::vector<std::string> parts;
  for (auto end = text.find(sign); end != text.npos; end = text.find(sign)) {
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(end + sign.size());
  }
  if (sign != "\n") parts.emplace_back(text);
  return parts;
}

}  // namespace

TEST_CASE("what the check says of an entry") {
  WashFixture pc;
  for (const std::string& row : split(Said.substr(1), "\n")) {
    std::string meaning = row.substr(row.find('|') + 1);
    for (const auto& [sign, text] :
         {std::pair{"W", "; once the wash has wiped any key, all of it"},
          std::pair{"A", " with its values and subkeys: a key entry stands above"}}) {
      for (const char* end : {"K", "K ", "e", "itself"}) {
        const auto place = meaning.find(std::string(end) + sign);
        if (place != meaning.npos) meaning.replace(place + std::string_view(end).size(), 1, text);
      }
    }
    PluginCheck check(pc.engine);
    check.begin(row[0] == 'F' ? PluginFile::Files : PluginFile::Registry);
    CheckedLine checked;
    int number = 0;
    for (const std::string& line : split(row.substr(4, row.find('|') - 4), " & ")) {
      checked = check.next(line);
      CHECK(checked.number == ++number);
    }
    CHECK(checked.meaning == meaning);
    CHECK_MESSAGE(" ?!"[static_cast<int>(checked.verdict)] == row[2], row);
  }
}

TEST_CASE("a list that has ended goes on with the next file") {
  WashFixture pc;
  PluginCheck check(pc.engine);
  CHECK(check.readText("no entries.\nC:\\b", PluginFile::Files).back().verdict == Meaning::Verdict::Never);
  CHECK(check.readText("HKEY_USERS\\a- Key*", PluginFile::Registry).back().verdict ==
        Meaning::Verdict::Plain);
}
