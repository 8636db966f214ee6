// What only a PC in a folder has: names of the host, links out of the folder, facts about files.
#include <algorithm>
#include <set>
#include <utility>

#include "platform/ContractPc.h"
#include "platform/folder/FolderChannel.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/FolderSearch.h"
#include "platform/folder/NewPc.h"
#include "support/Golden.h"
#include "support/TempFolder.h"

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace zub;

namespace {

// A PC with a folder beside it that nothing on the PC may reach.
struct Fenced {
  TempFolder temp;
  std::unique_ptr<HostDir> outside;
  std::unique_ptr<HostDir> drive;
  std::unique_ptr<FolderPc> pc;

  Fenced() {
    createPc(temp.path() + "/pc");
    REQUIRE(temp.dir().makeDir("outside") == HostError::None);
    outside = openHostDir(temp.path() + "/outside");
    drive = openHostDir(temp.path() + "/pc/C");
    for (HostDir* dir : {outside.get(), &temp.dir()}) writeHostFile(*dir, "secret", "keep");
    pc = std::make_unique<FolderPc>(temp.path() + "/pc");
  }
  Files& files() { return pc->files; }
  bool untouched() {
    return readHostFile(*outside, "secret") == "keep" && readHostFile(temp.dir(), "secret") == "keep";
  }
  // A folder on drive C:, made behind the PC's back.
  std::unique_ptr<HostDir> folder(const std::string& name) {
    std::unique_ptr<HostDir> made;
    REQUIRE(drive->makeDir(name) == HostError::None);
    REQUIRE(drive->openDir(name, made) == HostError::None);
    return made;
  }
};

}  // namespace

TEST_CASE("no path leads out of the folder") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string host = fenced.temp.path();
  std::vector<std::string> paths = {host + "/secret", "\\\\?\\" + host + "/secret",
                                    std::string("C:\\a\0\\secret", 13)};
  for (const char* path : {"C:\\..\\..\\outside\\secret", "..\\..\\secret", "/../../secret", "Z:\\secret",
                           "\\\\server\\share\\secret", "..", "C:\\.../secret", "C:\\.. \\.. \\secret"})
    paths.emplace_back(path);
  for (const std::string& path : paths) {
    CAPTURE(path);
    CHECK_FALSE(files.fileExists(path));
    CHECK(failure([&] { files.grip(path)->remove(); }) != 0);
    CHECK(failure([&] { files.open(path, OpenMode::Input); }) != 0);
    const bool isRoot = path == "..";
    CHECK(failure([&] { files.grip(path)->resetAttributes(); }) == (isRoot ? 0 : 53));
    CHECK(files.shortPath(path) == (isRoot ? "C:\\" : ""));
  }
  CHECK(failure([&] { files.deleteFolder("C:\\.."); }) == 75);
  CHECK(failure([&] { files.deleteFolder("\\\\x"); }) == 76);
  CHECK(failure([&] { files.open("C:\\" + std::string(300, 'n'), OpenMode::Binary); }) == 52);
  CHECK(fenced.untouched());
}

TEST_CASE("facts about files and drives") {
  TestPc pc({"locked = C:\\Long Dir\\Locked.html", "hidden = C:\\h.txt", "system = C:\\h.txt",
             "read only = D", "drive D = fixed", "drive E = cdrom"});
  pc.file("C:\\long dir\\locked.html");
  pc.file("C:\\H.TXT");
  pc.file("D:\\f");
  Files& files = *pc.platform().files;
  CHECK(files.attributes("C:\\h.txt") == (attribute::Hidden | attribute::System));
  files.grip("C:\\h.txt")->resetAttributes();
  CHECK(files.attributes("C:\\h.txt") == attribute::Normal);

  CHECK(failure([&] { files.open("C:\\Long dir\\locked.HTML", OpenMode::Input); }) == 70);
  CHECK(failure([&] { files.grip("C:\\Long dir\\locked.HTML")->remove(); }) == 70);
  CHECK(failure([&] { files.deleteFolder("C:\\long DIR"); }) == 70);
  CHECK(failure([&] { files.grip("D:\\f")->remove(); }) == 70);
  CHECK(failure([&] { files.createFolder("D:\\new"); }) == 70);
  CHECK(failure([&] { files.open("D:\\f", OpenMode::Binary); }) == 70);
  CHECK(failure([&] { files.open("D:\\f", OpenMode::Input); }) == 0);
  CHECK(pc.platform().drives->list() == std::vector<std::string>{"C:", "D:", "E:"});
  CHECK(pc.platform().drives->type("e:\\") == DriveType::CdRom);
  CHECK(failure([&] { files.open("F:\\f", OpenMode::Input); }) == 76);
}

TEST_CASE("a name that no disk can have leads nowhere, which is told") {
  Fenced fenced;
  fenced.files().createFolder("C:\\Program Files\\Long name");
  const std::string endless(300, 'x');
  for (const std::string& path :
       {std::string("C:\\PROGRA~9\\x"), std::string("C:\\Program Files\\~sort1.tmp"),
        std::string("C:\\Program Files\\LONGNA~9"), "C:\\" + endless + "\\x"})
    CHECK_FALSE(fenced.files().fileExists(path));
  const std::set<std::string> told{"C/PROGRA~9: an 8.3 name that leads nowhere",
                                   "C/Program Files/LONGNA~9: an 8.3 name that leads nowhere",
                                   "C/" + endless + ": Bad file name or number"};
  CHECK(fenced.pc->failures().texts() == told);
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

TEST_CASE("a link goes in every place, and its target stays") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string c = fenced.temp.path() + "/pc/C";
  const std::string outside = fenced.temp.path() + "/outside";
  files.createFolder("C:\\tree");
  for (const char* place : {"", "/tree"}) {
    link(outside, c + place + "/folder");
    link(outside + "/secret", c + place + "/file");
    link("/nowhere", c + place + "/broken");
    REQUIRE(::mkfifo((c + place + "/pipe").c_str(), 0600) == 0);
  }
  link(outside, fenced.temp.path() + "/pc/D");  // no drive
  CHECK_FALSE(fenced.pc->drives.exists("D:"));
  CHECK(failure([&] { files.grip("D:\\secret"); }) == 53);
  CHECK(failure([&] { files.grip("C:\\folder\\secret")->remove(); }) == 70);
  CHECK(failure([&] { files.open("C:\\folder\\new", OpenMode::Binary); }) == 70);
  CHECK(failure([&] { files.createFolder("C:\\folder\\new"); }) == 70);
  for (const char* path : {"C:\\folder", "C:\\file", "C:\\broken", "C:\\pipe"}) {
    CAPTURE(path);
    CHECK(isFolderLink(files.attributes(path)) == (path == std::string("C:\\folder")));
    CHECK(failure([&] { files.open(path, OpenMode::Input); }) == 75);
    CHECK(failure([&] { files.open(path, OpenMode::Binary); }) == 75);
    files.grip(path)->resetAttributes();
    CHECK(files.grip(path)->length() == 0);
    files.grip(path)->remove();
    CHECK(files.attributes(path) == attribute::Invalid);
  }
  files.deleteFolder("C:\\tree");
  CHECK_FALSE(files.folderExists("C:\\tree"));
  CHECK(fenced.untouched());
}

TEST_CASE("a link swapped in while a search runs is not followed") {
  Fenced fenced;
  Files& files = fenced.files();
  const std::string c = fenced.temp.path() + "/pc/C";
  files.createFolder("C:\\walk");
  for (const char* name : {"secret", "other"}) files.open(std::string("C:\\walk\\") + name, OpenMode::Binary);

  const auto search = files.find("C:\\walk\\*");
  FoundFile found;
  REQUIRE(search->next(found));
  REQUIRE(fenced.drive->rename("walk", "moved") == HostError::None);
  link(fenced.temp.path() + "/outside", c + "/walk");
  do {
    files.folderExists("C:\\WINDOWS\\TEMP");  // no handle is kept on the way to the folder
    failure([&] { files.grip("C:\\walk\\" + found.name)->remove(); });
  } while (search->next(found));
  CHECK(failure([&] { files.find("C:\\walk\\*.*x*"); }) == 70);
  CHECK(fenced.untouched());
}

TEST_CASE("a folder that another takes the place of is found anew, and a grip stays on what was found") {
  Fenced fenced;
  Files& files = fenced.files();
  writeHostFile(*fenced.folder("a"), "f", "x");
  const auto grip = files.grip("C:\\a\\f");
  REQUIRE(fenced.drive->rename("a", "b") == HostError::None);
  const auto other = fenced.folder("a");
  for (const char* name : {"f", "new"}) writeHostFile(*other, name, "another");
  CHECK(files.fileExists("C:\\a\\new"));
  grip->resetAttributes();
  grip->open()->write("y");
  grip->remove();
  CHECK(readHostFile(*other, "f") == "another");
  CHECK_FALSE(files.fileExists("C:\\b\\f"));
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
    pc.platform().restart->writeProfile("a", "k", "1", "wininit.ini");
    CHECK(pc.bytes(ini) == (readOnly ? "[a]\r\n" : "[a]\r\nk=1\r\n"));
    CHECK(pc.bytes("C:\\WINDOWS\\same") == "[a]\r\n");
    CHECK(pc.bytes(ini + ".new") == "somebody's own");
    CHECK_FALSE(pc.hasFile(ini + ".new_"));
  }
}

TEST_CASE("a search whose listing fails in its midst says so") {
  struct Failing : HostList {
    bool next(HostEntry& entry) override {
      entry = {"a.txt", {HostKind::File}, true};
      return !std::exchange(told, true);
    }
    HostError failure() const override { return HostError::DeviceFailure; }
    bool told = false;
  };
  const PcFacts facts("");
  FolderSearch search(std::make_unique<Failing>(), "*.txt", "", facts);
  FoundFile found;
  REQUIRE(search.next(found));
  CHECK(failure([&] { search.next(found); }) == 57);
}

TEST_CASE("names that only another system makes are told so that they lead back") {
  Fenced fenced;
  const auto folder = fenced.folder("odd");
  for (const char* name : {"..\\..\\secret", "a:b", "nul", "end.", "good", "UPPER", "upper", "\xFF raw",
                           "a\xFFz", "<0101>", "\xC4\x81", "\xED\xA0\xBD\xED\xB8\x80", "\xF0\x9F\x98\x80"}) {
    writeHostFile(*folder, name, "x");
  }
  Files& files = fenced.files();
  const std::vector<std::string> names = namesIn(files, "C:\\odd\\*");
  std::string told;
  for (std::size_t gone = 0; gone < names.size(); ++gone) {
    told += names[gone] + '\n';
    files.grip("C:\\odd\\" + names[gone])->remove();
    CHECK(namesIn(files, "C:\\odd\\*").size() == names.size() - gone - 1);
  }
  checkGolden("odd-names.txt", told);
  CHECK(fenced.untouched());
}

TEST_CASE("each pass over a file reaches the host before the next one") {
  struct Noting : HostFile {
    explicit Noting(std::string& log) : calls(log) {}
    HostError length(std::uint64_t& bytes) override {
      bytes = 2048;
      return HostError::None;
    }
    HostError read(std::uint64_t, std::span<char>, std::size_t&) override { return HostError::None; }
    HostError write(std::uint64_t offset, std::string_view bytes) override {
      calls += "write " + std::to_string(offset) + ' ' + std::to_string(bytes.size()) + ';';
      return HostError::None;
    }
    HostError sync() override {
      calls += "sync;";
      return HostError::None;
    }
    std::string& calls;
  };
  std::string calls;
  FolderChannel channel(std::make_unique<Noting>(calls), true);
  for (int pass = 0; pass < 2; ++pass) {
    channel.seek(0);
    for (int block = 0; block < 2; ++block) channel.write(std::string(1024, '\0'));
    channel.sync();
  }
  channel.close();
  CHECK(calls == "write 0 2048;sync;write 0 2048;sync;");
}

#endif
