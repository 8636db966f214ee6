// How names, paths and patterns are read, before any disk is asked: what becomes of each stands in an approved text.
#include <sstream>
#include <string>
#include <vector>

#include "platform/Wildcard.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/ShortName.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

using namespace zub;

namespace {

// The parts of a text between semicolons.
std::vector<std::string> parts(const std::string& text) {
  std::vector<std::string> all;
  std::istringstream rest(text + ';');
  for (std::string part; std::getline(rest, part, ';');) all.push_back(part);
  return all;
}

}  // namespace

TEST_CASE("a path is taken apart where its names can be") {
  constexpr const char* faults[] = {"", "no file has such a name", "a PC in a folder has no network"};
  std::string told;
  for (const std::string& path :
       parts("C:\\A file. "
             ".;c:\\a/b\\\\c\\;z:\\x;Z:x;a:;D:..;x;\\x;/x\\..\\y;C:x;..;..\\..\\..\\up;C:\\...;C:\\ "
             "\\a;.;C:\\.\\.\\a;"
             "\\\\server\\share;\\/x;/;//"
             "x;\\;;1:\\x;[:\\x;@:\\x;`:\\x;{:\\x;C:\\a?b;C:\\a*;C:\\a:b;C:\\a|b;C:\\<;C:\\>;C:\\\";C:\\a\tb;"
             "C:\\a\x1f;"
             "C:\\a "
             "\x7f;C:\\con;C:\\NUL.txt;C:\\aux\\x;C:\\prn;C:\\com1.x;C:\\com9;C:\\com0;C:\\coma;C:\\com;C:"
             "\\com10;C:\\x\\lpt9;"
             "C:\\LPT1;C:\\lpt;"
             "C:\\cons;C:\\conx.con;C:\\<0101>;C:\\<005C>\\<002E002E>;C:\\<01>;C:\\\xE4\xDF\x80")) {
    FolderPath result;
    const PathFault fault = parsePath(path, {'C', {"Cur", "rent"}}, result);
    told += printable(path) + "  =  " + faults[static_cast<int>(fault)];
    if (fault == PathFault::None)
      told += printable(result.text() + ", " + result.key() + (result.namesFolder ? ", a folder" : ""));
    told += '\n';
  }
  checkGolden("paths.txt", told);
}

TEST_CASE("a pattern matches as in Windows, and one of many stars is settled at once") {
  const auto upper = [](const std::string& text) { return folded(utf16FromAnsi(text)); };
  const std::vector<std::string> names = parts(
      ".x;a;aa;a.b;a.b.c;chk;a.chk;a.b.chk;a.chk2;A.TXT;a.txt.x;INDEX;index.dat;index2.dat;f.txt;f1.txt;f12."
      "txt;f123.txt;"
      "abc;axxbxxc;abbcc;ab;acb;bab;\xC4pfel;Apfel;\x80.<0101>;<0102>.<0101>;<01020103>.<0101>");
  std::string told;
  for (const std::string& pattern : parts(
           "*.*;*;*.chk;a.txt. .;a. "
           ";index.*;f??.txt;f?.txt;a*b*c;*a?;?;??;*.;a*.;*.?;*.???;a.b.?;a.?x;\xE4*;?.<0101>;; ;.;**;*b")) {
    told += '"' + printable(pattern) + "\" matches";
    for (const std::string& name : names) {
      if (Wildcard(upper(pattern)).matches(upper(name))) told += ' ' + printable(name);
    }
    told += '\n';
  }
  checkGolden("patterns.txt", told);

  std::u16string stars;
  for (int i = 0; i < 200; ++i) stars += u"*A";
  CHECK_FALSE(Wildcard(stars + u"*B").matches(std::u16string(5000, 'A')));
}

TEST_CASE("which names are short ones, and which of them a Windows made for longer names") {
  std::string told;
  for (const std::string& name :
       parts("PROGRA~1;progr~12;A_B~1.TXT;LONGNA~3.H;THEC~0QB.TXT;PROGRA~;~1;~sort1.tmp;a~$;a~b "
             "c;LONGNAME~1;A~1.HTML;a~1.b.c;A B~1;"
             "a~1.;.a~1;plain;plain.txt;eightful.htm;eightfull;.htm;a.;a.b.c;a,b;a+b.c;a;a.=;a~b.[;"))
    told += '"' + name + '"' + (isShortName(name) ? " is short" : "") +
            (isMadeShortName(name) ? " and made" : "") + '\n';
  checkGolden("short-names.txt", told);
}
