#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "platform/Wildcard.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/ShortName.h"

using namespace zub;

// Beyond what every PC is asked.
TEST_CASE("wildcards") {
  struct Row {
    const char* pattern;
    std::vector<const char*> match;
    std::vector<const char*> differ;
  };
  const std::vector<Row> rows = {
      {"*.*", {".x", "a.b.c"}, {}},
      {"*.chk", {"a.b.chk"}, {"chk", "a.chk2", "a.ch"}},
      {"a.txt. .", {"A.TXT"}, {"a"}},
      {"index.*", {"index.dat", "INDEX", "index.x.y"}, {"index2.dat"}},
      {"f??.txt", {"f.txt", "f1.txt", "f12.txt"}, {"f123.txt", "g12.txt"}},
      {"a*b*c", {"abc", "axxbxxc", "abbcc"}, {"ab", "acb"}},
      {"*a?", {"bab", "a", "aaa"}, {"b", "abb"}},
      {"\xE4*", {"\xC4pfel"}, {"Apfel"}},
      {"?.<0101>", {"\x80.<0101>", "<0102>.<0101>"}, {"a.a", "<01020103>.<0101>"}},
      {"", {}, {"a"}},
      {" ", {}, {"a"}},
      {".", {}, {"a", "a.b"}},
  };
  for (const Row& row : rows) {
    CAPTURE(row.pattern);
    const auto upper = [](const char* text) { return folded(utf16FromAnsi(text)); };
    const Wildcard wildcard(upper(row.pattern));
    for (const char* name : row.match) CHECK_MESSAGE(wildcard.matches(upper(name)), name);
    for (const char* name : row.differ) CHECK_MESSAGE(!wildcard.matches(upper(name)), name);
  }
}

TEST_CASE("a pattern of many stars is settled at once") {
  std::u16string pattern;
  for (int i = 0; i < 200; ++i) pattern += u"*A";
  CHECK_FALSE(Wildcard(pattern + u"*B").matches(std::u16string(5000, 'A')));
}

TEST_CASE("names that a Windows made for longer ones") {
  for (const char* name : {"PROGRA~1", "progr~12", "A_B~1.TXT", "LONGNA~3.H", "THEC~0QB.TXT"})
    CHECK_MESSAGE(isMadeShortName(name), name);
  for (const char* name :
       {"PROGRA~", "~1", "~sort1.tmp", "a~$", "a~b c", "LONGNAME~1", "A~1.HTML", "a~1.b.c", "A B~1"})
    CHECK_MESSAGE(!isMadeShortName(name), name);
}
