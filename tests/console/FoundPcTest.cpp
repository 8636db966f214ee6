#include <doctest/doctest.h>

#include "app/console/Commands.h"
#include "app/console/FoundPc.h"
#include "app/console/ImportCommand.h"
#include "platform/folder/FolderRegistry.h"
#include "platform/folder/RegistryText.h"

using namespace zub;

namespace {

constexpr const char* Nt =
    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion]\n\"SystemRoot\"=\"D:\\\\WINNT\"\n";
constexpr const char* NtProfile =
    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\S-1-5-21-7]\n"
    "\"ProfileImagePath\"=\"%SystemDrive%\\\\Users\\\\lena\"\n";
constexpr const char* Windows98 =
    "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion]\n\"SystemRoot\"=\"C:\\\\WIN98\"\n";

// Shell Folders of a branch, from its hive on.
std::string folders(const std::string& branch) {
  return "[" + branch + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders]\n" +
         "\"Cookies\"=\"C:\\\\x\\\\Cookies\"\n\"Desktop\"=\"C:\\\\x\\\\Desktop\"\n";
}

std::string environment(const std::string& temp) {
  return "[HKEY_USERS\\S-1-5-21-7\\Environment]\n\"TEMP\"=\"" + temp + "\"\n";
}

}  // namespace

TEST_CASE("a registry tells the family, the folders and the user of its PC, and what is assumed") {
  const std::string default_ = folders("HKEY_USERS\\.DEFAULT");
  const std::string one = folders("HKEY_USERS\\S-1-5-21-7");
  struct Row {
    std::string text;
    std::string chosen;
    const char* family;
    const char* windows;
    const char* user;
    const char* temp;
  };
  const Row rows[] = {
      {"", "", "9x", "C:\\WINDOWS", "", "C:\\WINDOWS\\TEMP"},
      {Windows98 + folders("HKEY_CURRENT_USER") + default_, "", "9x", "C:\\WIN98", "", "C:\\WIN98\\TEMP"},
      {"[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion]\n"
       "\"SystemRoot\"=hex(1):43,3a,5c,57,0a,64,72,69,76,65,00\n",  // a second line, which would be a fact
       "", "9x", "C:\\WINDOWS", "", "C:\\WINDOWS\\TEMP"},
      {Windows98 + default_, "", "9x", "C:\\WIN98", ".DEFAULT", "C:\\WIN98\\TEMP"},
      {Windows98 + default_ + folders("HKEY_USERS\\lena"), "", "9x", "C:\\WIN98", "lena", "C:\\WIN98\\TEMP"},
      {Nt + default_ + one, "", "nt", "D:\\WINNT", "S-1-5-21-7", "C:\\x\\Local Settings\\Temp"},
      {Nt + std::string(NtProfile) + one + environment("%USERPROFILE%\\\\T"), "", "nt", "D:\\WINNT",
       "S-1-5-21-7", "D:\\Users\\lena\\T"},
      {Nt + one + environment("%OTHER%"), "", "nt", "D:\\WINNT", "S-1-5-21-7", "C:\\x\\Local Settings\\Temp"},
      {one + folders("HKEY_USERS\\S-1-5-21-8"), "", "nt", "C:\\WINDOWS", "", "C:\\WINDOWS\\TEMP"},
      {one + folders("HKEY_USERS\\S-1-5-21-8"), "S-1-5-21-8", "nt", "C:\\WINDOWS", "S-1-5-21-8",
       "C:\\x\\Local Settings\\Temp"},
      {"[HKEY_USERS\\S-1-5-21-7]\n" + folders("HKEY_USERS\\S-1-5-18"), "", "nt", "C:\\WINDOWS", "",
       "C:\\WINDOWS\\TEMP"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    RegistryTree tree = readRegistryText("REGEDIT4\n" + row.text, "x.reg");
    const FolderRegistry::Rules rules{&family9x, {}};
    FolderRegistry registry(tree, rules);
    const FoundPc found = findPc(registry, row.chosen);
    CHECK(found.family.value == row.family);
    CHECK(found.windows.value == row.windows);
    CHECK(found.user.value == row.user);
    CHECK(found.temp.value == row.temp);
  }
}

TEST_CASE("the words of an import") {
  const ImportWanted wanted = importWanted({"--registry", "a.reg", "--as", "HKEY_USERS\\x", "--registry",
                                            "b.reg", "c.reg", "--drive", "d=/mnt", "--user", "x", "pc"});
  REQUIRE(wanted.exports.size() == 3);
  CHECK(wanted.exports[0].below.empty());
  CHECK(wanted.exports[2].file == "c.reg");
  CHECK(wanted.exports[2].below == "HKEY_USERS\\x");
  CHECK(wanted.drives == std::map<char, std::string>{{'D', "/mnt"}});
  CHECK(wanted.user == "x");
  CHECK(wanted.folder == "pc");
  for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                {"pc"},
                                                {"--registry", "pc"},
                                                {"a.reg", "pc"},
                                                {"--registry", "a", "--user", "pc"},
                                                {"--registry", "a", "--drive", "C:=/mnt", "pc"},
                                                {"--registry", "a", "--polish", "x", "pc"}}) {
    CAPTURE(words.size());
    CHECK_THROWS_AS(importWanted(words), UsageError);
  }
}
