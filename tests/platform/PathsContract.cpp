// How a file is named: every spelling of its path, names that the code page lacks, long paths and short ones.
#include "base/Text.h"
#include "platform/ContractPc.h"

namespace zub {

TEST_CASE_TEMPLATE("files: many paths mean one file", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + '\\';
  files.createFolder(base + "My Folder");
  pc.file(base + "My Folder\\File.Txt", "12345");
  files.open("Relative.txt", OpenMode::Binary)->write("67890");
  const std::string here = pc.platform().folders->current();
  for (const std::string& path :
       {base + "my folder\\FILE.TXT", base + "\\MY FOLDER\\\\file.txt", base + "My Folder//file.txt",
        base + "my folder\\.\\x\\..\\file.txt", JoinPath(here, "Relative.txt"),
        here.substr(0, 2) + "relative.TXT", std::string(".\\Relative.txt"),
        JoinPath(here, "relative.TXT").substr(2)}) {  // on the current drive
    CAPTURE(path);
    CHECK(files.fileExists(path));
    CHECK(failure([&] { CHECK(files.grip(path)->length() == 5); }) == 0);
  }
  CHECK(found(files, pc.folder() + "\\My*") == "My Folder");  // as written
}

TEST_CASE_TEMPLATE("files: what comes and goes is known at once, however it is written", Pc, CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string base = pc.folder() + "\\A long name.";
  const auto there = [&] { return files.fileExists(base + "TXT") || files.folderExists(base + "TXT"); };
  pc.file(base + "Txt", "x");
  files.grip(base + "txt")->remove();
  CHECK_FALSE(there());
  files.open(base + "txt", OpenMode::Binary)->close();
  CHECK(there());
  files.grip(base + "Txt")->remove();
  CHECK_FALSE(there());
  files.replace(base + "tXt", "x");
  CHECK(there());
  files.grip(base + "txT")->remove();
  CHECK_FALSE(there());
  files.createFolder(base + "txt");
  CHECK(there());
  files.deleteFolder(base + "Txt");
  CHECK_FALSE(there());
}

TEST_CASE_TEMPLATE("files: each told name leads back to its own entry", Pc, CONTRACT_PCS) {
  Pc pc;
  // A real Windows of the 9x family has no calls that reach such names.
  if (pc.followsLinks() && !isNt(pc)) return;
  Files& files = *pc.platform().files;
  const std::u16string decoys[] = {u"a.tmp", u"end", u"keepdir"};
  const struct {
    std::u16string name;
    const char* told;
    bool folder = false;
  } rows[] = {
      {u"\u0101.tmp", "<0101>.tmp"},                                  // the code page has a look-alike: a
      {u"\uFF0E\uFF0E\uFF3Ckeepdir", "<FF0EFF0EFF3C>keepdir", true},  // ..\keepdir
      {u"a\uFF1Ab", "a<FF1A>b"},
      {u"\U0001F600", "<D83DDE00>"},
      {u"end.", "end<002E>"},
      {u"nul", "<006E>ul"},
      {u"\u00E4\u20AC", "\xE4\x80"},
  };
  for (const auto& name : decoys) pc.wide(name, name == u"keepdir");
  for (const auto& row : rows) pc.wide(row.name, row.folder);
  const std::string base = pc.folder() + '\\';
  CHECK(found(files, base + "?.tmp") == "<0101>.tmp, a.tmp");
  for (const auto& row : rows) {
    CAPTURE(std::string(row.told));
    CHECK(found(files, base + "*").find(row.told) != std::string::npos);
    files.shortPath(base + row.told);
    if (row.folder) {
      CHECK(files.folderExists(base + row.told));
      files.deleteFolder(base + row.told);
    } else {
      files.grip(base + row.told)->resetAttributes();
      files.grip(base + row.told)->length();
      files.grip(base + row.told)->remove();
    }
    CHECK_FALSE(pc.hasWide(row.name));
  }
  CHECK(found(files, base + "*") == "a.tmp, end, keepdir");
}

TEST_CASE_TEMPLATE("files: no length of a path hides a file", Pc, CONTRACT_PCS) {
  Pc pc;
  // The calls of the 9x family take 259 characters.
  if (pc.followsLinks() && !isNt(pc)) return;
  Files& files = *pc.platform().files;
  std::string folder = pc.folder();
  for (int level = 0; level < 5; ++level) {
    folder += '\\' + std::string(100, static_cast<char>('a' + level));
    files.createFolder(folder);
  }
  for (const char* name : {"\\one", "\\two"}) files.open(folder + name, OpenMode::Binary)->write("12345");
  CHECK(files.grip(folder + "\\one")->length() == 5);
  files.grip(folder + "\\one")->remove();
  CHECK(found(files, folder + "\\*.*") == "two");
}

TEST_CASE_TEMPLATE("files: the short path of a file is in 8.3 where the disk keeps that, and leads to it", Pc,
                   CONTRACT_PCS) {
  Pc pc;
  Files& files = *pc.platform().files;
  const std::string path = pc.folder() + "\\a long file name.text";
  pc.file(path, "1234567");
  const std::string shortPath = files.shortPath(path);
  REQUIRE_FALSE(shortPath.empty());
  CHECK(files.grip(shortPath)->length() == 7);
  const std::string_view name = lastPathPart(shortPath);
  CHECK((name.size() <= 12 && name.find(' ') == std::string_view::npos) == pc.keepsShortNames());
  CHECK(files.shortPath(pc.folder() + "\\missing").empty());
  // A name that is short already stays as it is on the NT family.
  pc.file(pc.folder() + "\\plain.txt", "");
  const std::string plain = files.shortPath(pc.folder() + "\\plain.txt");
  const bool raised = !isNt(pc) && !pc.deviates("short capitals");
  CHECK(lastPathPart(plain) == (raised ? "PLAIN.TXT" : "plain.txt"));
}

}  // namespace zub
