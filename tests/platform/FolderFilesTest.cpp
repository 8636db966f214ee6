// What only a PC in a folder has: names of the host, links out of the folder, facts about files.
#include <doctest/doctest.h>

#include <algorithm>

#include "platform/folder/FolderPc.h"
#include "support/TempFolder.h"
#include "support/TestPc.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace zub;

namespace {

// The error number, 0 where the call does not fail.
template <class Work>
int failureOf(Work work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return static_cast<int>(error.number());
  }
  return 0;
}

// A PC with a folder beside it that nothing on the PC may reach.
struct Fenced {
  TempFolder temp;
  std::unique_ptr<HostDir> outside;
  std::unique_ptr<HostDir> drive;
  std::unique_ptr<FolderPc> pc;

  Fenced() {
    createPc(temp.path() + "/pc");
    std::unique_ptr<HostDir> root;
    REQUIRE(temp.dir().makeDir("outside") == HostError::None);
    REQUIRE(temp.dir().openDir("outside", outside) == HostError::None);
    REQUIRE(temp.dir().openDir("pc", root) == HostError::None);
    REQUIRE(root->openDir("C", drive) == HostError::None);
    writeHostFile(*outside, "secret", "keep");
    writeHostFile(temp.dir(), "secret", "keep");
    pc = std::make_unique<FolderPc>(temp.path() + "/pc");
  }
  Files& files() { return pc->files; }
  bool untouched() {
    return readHostFile(*outside, "secret") == "keep" && readHostFile(temp.dir(), "secret") == "keep";
  }
};

}  // namespace

TEST_CASE("no path leads out of the folder") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string host = fenced.temp.path();
  const std::vector<std::string> paths = {"C:\\..\\..\\outside\\secret",
                                          "C:\\..\\..\\secret",
                                          "..\\..\\secret",
                                          "C:..\\..\\secret",
                                          "/../../secret",
                                          "Z:\\secret",
                                          "\\\\server\\share\\secret",
                                          "\\\\?\\" + host + "/secret",
                                          host + "/secret",
                                          "C:\\WINDOWS\\..\\..\\..\\secret",
                                          "..",
                                          std::string("C:\\a\0\\secret", 13),
                                          "C:\\C\\..\\..\\..\\secret",
                                          "1:\\secret",
                                          "C:\\.../secret",
                                          "C:\\.. \\.. \\secret"};
  for (const std::string& path : paths) {
    CAPTURE(path);
    CHECK_FALSE(files.fileExists(path));
    CHECK(failureOf([&] { files.remove(path); }) != 0);
    CHECK(failureOf([&] { files.open(path, OpenMode::Input); }) != 0);
    const bool isRoot = path == "..";
    CHECK(failureOf([&] { files.resetAttributes(path); }) == (isRoot ? 0 : 53));
    CHECK(files.shortPath(path) == (isRoot ? "C:\\" : ""));
  }
  CHECK(failureOf([&] { files.deleteFolder("C:\\.."); }) == 75);
  CHECK(failureOf([&] { files.deleteFolder("\\\\x"); }) == 76);
  CHECK(fenced.untouched());
  CHECK(files.folderExists("C:\\WINDOWS"));
}

TEST_CASE("paths that mean the same file") {
  TestPc pc;
  pc.file("C:\\WINDOWS\\My Folder\\file.txt", "12345");
  Files& files = pc.platform().files;
  for (const char* path : {"C:\\WINDOWS\\My Folder\\file.txt", "c:\\windows\\MY FOLDER\\FILE.TXT",
                           "C:/WINDOWS//My Folder/file.txt", "\\WINDOWS\\My Folder\\file.txt",
                           "WINDOWS\\My Folder\\file.txt", "C:WINDOWS\\.\\My Folder\\x\\..\\file.txt",
                           "C:\\..\\WINDOWS\\My Folder. \\file.txt. .", "C:\\WINDOWS\\MYFOLD~1\\FILE.TXT"}) {
    CAPTURE(path);
    CHECK(files.fileExists(path));
    CHECK(files.openedLength(path) == 5);
    CHECK(files.shortPath(path) == "C:\\WINDOWS\\MYFOLD~1\\file.txt");
  }
}

TEST_CASE("names that no file can have") {
  TestPc pc;
  Files& files = pc.platform().files;
  for (const char* path : {"C:\\a?b", "C:\\a*", "C:\\a:b", "C:\\a|b", "C:\\<", "C:\\con", "C:\\NUL.txt",
                           "C:\\com1.x", "C:\\x\\lpt9", "C:\\ \\a", "C:\\...", "C:\\a\tb", ""}) {
    CAPTURE(path);
    CHECK(failureOf([&] { files.open(path, OpenMode::Output); }) == 52);
    CHECK(failureOf([&] { files.resetAttributes(path); }) == 53);
    CHECK(files.attributes(path) == attribute::Invalid);
  }
  CHECK(failureOf([&] { files.open("C:\\" + std::string(300, 'n'), OpenMode::Output); }) == 52);
  CHECK(failureOf([&] { files.open("C:\\com10", OpenMode::Output); }) == 0);
}

TEST_CASE("facts about files and drives") {
  TestPc pc({"locked = C:\\Dir\\Locked.txt", "hidden = C:\\h.txt", "system = C:\\h.txt", "read only = D",
             "drive D = fixed", "drive E = cdrom"});
  pc.file("C:\\dir\\locked.txt");
  pc.file("C:\\H.TXT");
  pc.file("D:\\f");
  Files& files = pc.platform().files;
  CHECK(files.attributes("C:\\h.txt") == (attribute::Hidden | attribute::System));
  files.resetAttributes("C:\\h.txt");
  CHECK(files.attributes("C:\\h.txt") == attribute::Normal);

  files.resetAttributes("C:\\dir\\locked.txt");
  CHECK(failureOf([&] { files.openedLength("C:\\dir\\locked.txt"); }) == 70);
  CHECK(failureOf([&] { files.open("C:\\dir\\locked.txt", OpenMode::Input); }) == 70);
  CHECK(failureOf([&] { files.remove("C:\\dir\\locked.txt"); }) == 70);
  CHECK(failureOf([&] { files.deleteFolder("C:\\dir"); }) == 70);
  CHECK(pc.hasFile("C:\\dir\\locked.txt"));

  CHECK(failureOf([&] { files.remove("D:\\f"); }) == 70);
  CHECK(failureOf([&] { files.createFolder("D:\\new"); }) == 70);
  CHECK(failureOf([&] { files.open("D:\\f", OpenMode::Binary); }) == 70);
  CHECK(failureOf([&] { files.open("D:\\f", OpenMode::Input); }) == 0);
  CHECK(pc.platform().drives.list() == std::vector<std::string>{"C:", "D:", "E:"});
  CHECK(pc.platform().drives.type("e:\\") == DriveType::CdRom);
  CHECK(failureOf([&] { files.open("F:\\f", OpenMode::Input); }) == 76);
}

TEST_CASE("a drive that is told and has no directory holds no disk") {
  TempFolder temp;
  createPc(temp.path());
  writeHostFile(temp.dir(), "pc.txt", "drive E = cdrom\n");
  FolderPc pc(temp.path());
  CHECK(pc.drives.exists("E:"));
  CHECK(failureOf([&] { pc.files.open("E:\\f", OpenMode::Input); }) == 71);
  CHECK_FALSE(pc.files.folderExists("E:\\"));
}

TEST_CASE("small writes over each other reach the file as if written one by one") {
  TestPc pc;
  pc.file("C:\\f", std::string(200000, 'x'));
  std::string expected(200000, 'x');
  const auto channel = pc.platform().files.open("C:\\f", OpenMode::Binary);
  const auto write = [&](std::size_t offset, const std::string& bytes) {
    channel->seek(static_cast<std::int64_t>(offset));
    channel->write(bytes);
    expected.replace(offset, bytes.size(), bytes);
  };
  write(0, "start");
  write(2, "over");
  write(100, std::string(70000, 'a'));
  write(65000, std::string(1000, 'b'));
  write(65500, std::string(65536, 'c'));
  write(199998, "yyyy");
  CHECK(channel->length() == 200002);
  char read[3];
  channel->seek(199999);
  CHECK(channel->read(read) == 3);
  CHECK(std::string(read, 3) == "yyy");
  channel->closeOnDisk();
  CHECK(pc.bytes("C:\\f") == expected);
}

#ifndef _WIN32

namespace {

std::vector<std::string> namesIn(Files& files, std::string_view pattern) {
  std::vector<std::string> names;
  FoundFile found;
  const auto search = files.find(pattern);
  while (search && search->next(found)) names.push_back(found.name);
  std::ranges::sort(names);
  return names;
}

void link(const std::string& target, const std::string& place) {
  REQUIRE(::symlink(target.c_str(), place.c_str()) == 0);
}

}  // namespace

TEST_CASE("a link is a file of length 0 in every place and its target stays") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string c = fenced.temp.path() + "/pc/C";
  const std::string outside = fenced.temp.path() + "/outside";
  link(outside, c + "/folder");
  link(outside + "/secret", c + "/file");
  link("/nowhere", c + "/broken");
  link(outside, fenced.temp.path() + "/pc/D");  // no drive

  CHECK_FALSE(fenced.pc->drives.exists("D:"));
  CHECK(failureOf([&] { files.remove("D:\\secret"); }) == 76);
  CHECK_FALSE(files.folderExists("C:\\folder"));
  CHECK_FALSE(files.find("C:\\folder\\*"));
  CHECK(failureOf([&] { files.remove("C:\\folder\\secret"); }) == 76);
  CHECK(failureOf([&] { files.open("C:\\folder\\new", OpenMode::Output); }) == 76);
  CHECK(failureOf([&] { files.createFolder("C:\\folder\\new"); }) == 76);
  CHECK(failureOf([&] { files.deleteFolder("C:\\folder"); }) == 76);
  for (const char* path : {"C:\\folder", "C:\\file", "C:\\broken"}) {
    CAPTURE(path);
    CHECK(files.fileExists(path));
    CHECK(files.attributes(path) == attribute::Normal);
    CHECK(failureOf([&] { files.open(path, OpenMode::Input); }) == 75);
    CHECK(failureOf([&] { files.open(path, OpenMode::Binary); }) == 75);
    files.resetAttributes(path);
    CHECK(files.openedLength(path) == 0);
    files.remove(path);
    CHECK_FALSE(files.fileExists(path));
  }
  CHECK(fenced.untouched());
}

TEST_CASE("a tree goes with the links in it and not with what they lead to") {
  Fenced fenced;
  const std::string c = fenced.temp.path() + "/pc/C";
  fenced.files().createFolder("C:\\tree");
  link(fenced.temp.path() + "/outside", c + "/tree/folder");
  link(fenced.temp.path() + "/outside/secret", c + "/tree/file");
  REQUIRE(::mkfifo((c + "/tree/pipe").c_str(), 0600) == 0);
  CHECK(failureOf([&] { fenced.files().open("C:\\tree\\pipe", OpenMode::Input); }) == 75);
  fenced.files().deleteFolder("C:\\tree");
  CHECK_FALSE(fenced.files().folderExists("C:\\tree"));
  CHECK(fenced.untouched());
}

TEST_CASE("a link swapped in while a search runs is not followed") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string c = fenced.temp.path() + "/pc/C";
  files.createFolder("C:\\walk");
  for (const char* name : {"secret", "other"}) files.open(std::string("C:\\walk\\") + name, OpenMode::Output);

  const auto search = files.find("C:\\walk\\*");
  FoundFile found;
  REQUIRE(search->next(found));
  REQUIRE(::rename((c + "/walk").c_str(), (c + "/moved").c_str()) == 0);
  link(fenced.temp.path() + "/outside", c + "/walk");
  do {
    failureOf([&] { files.remove("C:\\walk\\" + found.name); });
  } while (search->next(found));
  CHECK_FALSE(files.find("C:\\walk\\*.*x*"));
  CHECK(fenced.untouched());
}

TEST_CASE("a folder replaced behind a kept handle is found anew") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string c = fenced.temp.path() + "/pc/C";
  files.createFolder("C:\\a");
  files.open("C:\\a\\old", OpenMode::Output);
  REQUIRE(::rename((c + "/a").c_str(), (c + "/b").c_str()) == 0);
  std::unique_ptr<HostDir> folder;
  REQUIRE(fenced.drive->makeDir("a") == HostError::None);
  REQUIRE(fenced.drive->openDir("a", folder) == HostError::None);
  writeHostFile(*folder, "new", "x");
  CHECK(files.fileExists("C:\\a\\new"));
}

TEST_CASE("a profile is replaced in one step, and no file beside it is lost") {
  const std::string ini = "C:\\WINDOWS\\wininit.ini";
  for (const bool readOnly : {false, true}) {
    TestPc pc;
    pc.file(ini, "[a]\r\n");
    pc.file(ini + ".new", "somebody's own");
    if (readOnly) pc.readOnly(ini);
    const std::string host = pc.hostFolder() + "/C/WINDOWS/";
    REQUIRE(::link((host + "wininit.ini").c_str(), (host + "same").c_str()) == 0);
    pc.platform().restart.writeProfile("a", "k", "1", "wininit.ini");
    CHECK(pc.bytes(ini) == (readOnly ? "[a]\r\n" : "[a]\r\nk=1\r\n"));
    CHECK(pc.bytes("C:\\WINDOWS\\same") == "[a]\r\n");
    CHECK(pc.bytes(ini + ".new") == "somebody's own");
    CHECK_FALSE(pc.hasFile(ini + ".new_"));
  }
}

TEST_CASE("names of the host that no path leads to are not told") {
  Fenced fenced;
  std::unique_ptr<HostDir> folder;
  REQUIRE(fenced.drive->makeDir("odd") == HostError::None);
  REQUIRE(fenced.drive->openDir("odd", folder) == HostError::None);
  for (const char* name : {"..\\..\\secret", "a:b", "nul", "end.", "good", "UPPER", "upper", "\xC3\xA4",
                           "\xFF raw", "\xE6\x97\xA5"}) {
    writeHostFile(*folder, name, "x");
  }
  Files& files = fenced.files();
  const std::vector<std::string> expected = {"UPPER", "good", "upper", "\xE4", "\xE6\x97\xA5", "\xFF raw"};
  CHECK(namesIn(files, "C:\\odd\\*") == expected);
  // Each told name leads to its own file.
  for (const std::string& name : expected) {
    CAPTURE(name);
    files.remove("C:\\odd\\" + name);
  }
  CHECK(namesIn(files, "C:\\odd\\*").empty());
  files.deleteFolder("C:\\odd");
  CHECK_FALSE(files.folderExists("C:\\odd"));
}

TEST_CASE("a file without write bits is read-only for everyone") {
  TestPc pc;
  pc.file("C:\\r", "123");
  pc.readOnly("C:\\r");
  Files& files = pc.platform().files;
  CHECK(files.attributes("C:\\r") == attribute::ReadOnly);
  CHECK(failureOf([&] { files.openedLength("C:\\r"); }) == 75);
  CHECK(failureOf([&] { files.open("C:\\r", OpenMode::Output); }) == 75);
  CHECK(failureOf([&] { files.remove("C:\\r"); }) == 75);
  CHECK(pc.bytes("C:\\r") == "123");
  files.resetAttributes("C:\\r");
  CHECK(files.openedLength("C:\\r") == 3);
  files.remove("C:\\r");
  CHECK_FALSE(pc.hasFile("C:\\r"));
}

#endif
