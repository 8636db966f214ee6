// The texts of a PC folder that are refused: each with the line that is to blame, and why.
#include "platform/folder/FolderTasks.h"
#include "platform/folder/PcFacts.h"
#include "platform/folder/RegistryText.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

using namespace zub;
using namespace std::string_literals;

TEST_CASE("a damaged text is refused with its line and the reason") {
  std::string told;
  const auto refuse = [&told](const char* begin, auto read, const std::vector<std::string>& texts) {
    told += "== behind \"" + printable(begin) + "\"\n";
    for (const std::string& text : texts) {
      std::string why = "WAS READ";
      try {
        read(begin + text);
      } catch (const PcError& error) {
        why = error.what();
      }
      told += printable(text.substr(0, 60)) + "\n    " + why + '\n';
    }
  };
  const auto registry = [](const std::string& text) { readRegistryText(text, "registry.reg"); };
  std::string deep = "[HKEY_USERS", utf16 = "\xFF\xFE";
  for (int level = 0; level < 513; ++level) deep += "\\k";
  for (const char c : "REGEDIT4\n[HKEY_NONE]\n"s) utf16 += {c, '\0'};
  refuse("REGEDIT4\n[HKEY_USERS\\T]\n", registry,
         {"\"a\"=\"cut",
          "\"a\"=\"two\nlines\n",
          "\"a",
          "\"a\"",
          "\"a\"=",
          "\"a\"=dword:0001",
          "\"a\"=dword:\n",
          "\"a\"=dword:000000001\n",
          "\"a\"=dword:0000000g\n",
          "\"a\"=hex:01,0",
          "\"a\"=hex:01",
          "\"a\"=hex:01,\n",
          "\"a\"=hex:0g\n",
          "\"a\"=hex(zz):01\n",
          "\"a\"=hex(100000000):01\n",
          "\"a\"=hex(2:01\n",
          "\"a\"=\"x\" y\n",
          "\"a\"=\"C:\\WINDOWS\"\n",
          "a=\"x\"\n",
          "\"a\"=hex:01,\\\n",
          "\"a\"=hex:01,\\ x\n",
          "\"a\" \"b\"\n",
          "\"a\"=other:1\n",
          "\"a\0\"=\"\"\n"s,
          "REGEDIT4\n\"a\"=\"below no key\"\n",
          "[-HKEY_USERS\\T]\n\"a\"=\"below a key that went\"\n"});
  refuse("REGEDIT4\n", registry,
         {"\"a\"=\"value below no key\"\n", "[HKEY_CURRENT_USER\\Sof", "[", "[HKEY_NONE\\Software]\n", "[]\n",
          "[-HKEY_USERS]\n", "[HKEY_USERS\\a\\\\b]\n", "[HKEY_USERS\\a\\\\]\n", "[\\Software]\n",
          "[HKEY_USERS\\a\rb]\n", "[HKEY_USERS\\a\0b]\n"s, "[HKEY_USERS\\" + std::string(256, 'k') + "]\n",
          deep + "]\n"});
  refuse("", registry,
         {"", "regedit5\n", "REGEDIT4 and more\n", utf16, utf16 + "x", "\xFE\xFF\0R"s, "regf\1\0"s, "CREG\0"s,
          "WINE REGISTRY Version 2\n"});
  const auto below = [](const std::string& text) {
    RegistryTree tree;
    readRegistryInto(tree, text, "below a key.reg", "HKEY_USERS\\below");
  };
  refuse("REGEDIT4\n", below, {"[HKEY_USERS\\T]\n"});
  const auto facts = [](const std::string& text) { PcFacts{text}; };
  refuse("", facts,
         {"famly = 9x\n",
          "family = me\n",
          "family = nt\nfamily = 9x\n",
          "# comment\r\n\r\nwindows = WINDOWS\r\n",
          "windows = \\\\server\\x\n",
          "temp = C:\\a|b\n",
          "program = C:\n",
          "current\n",
          "drive CD = fixed\n",
          "drive 1 = fixed\n",
          "drive C = floppy\n",
          "drive C = fixed at \n",
          "user = Software\\x\n",
          "user =\n",
          "drive C = fixed\nDRIVE c = fixed\n",
          "read only = C:\n",
          "no rights = HKLM\\Software\n",
          "no rights =\n",
          "no rights = HKEY_USERS\\a\\\n",
          "= x\n"});
  const auto tasks = [](const std::string& text) { readTasksText(text, "tasks.txt"); };
  refuse("", tasks, {"nothing\n", "comment = before a task\n", "task =\n", "task = a\ntask = a\n"});
  refuse(
      "task = a\n", tasks,
      {"coment = x\n", "trigger = 0 2001-13-05 14:20\n", "trigger = 0 2001-00-05 14:20\n",
       "trigger = 0 2001-02-29 14:20\n", "trigger = 0 2001-09-00 14:20\n", "trigger = 0 2001-09-05 24:20\n",
       "trigger = 0 2001-09-05 14:60\n", "trigger = 0 2001-09-05 14:2\n", "trigger = x 2001-09-05 14:20\n"});
  checkGolden("refused.txt", told);
}
