// The texts of a PC folder, their refusals and their saves.
#include <algorithm>
#include <ctime>
#include <numeric>
#include <sstream>

#include "base/Text.h"
#include "platform/ContractPc.h"
#include "platform/ProfileText.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/HostText.h"
#include "platform/folder/NewPc.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"
#include "support/Golden.h"
#include "support/Snapshot.h"
#include "support/TempFolder.h"

using namespace zub;

namespace {

PcError errorOf(const std::string& folder) {
  try {
    FolderPc pc(folder);
  } catch (const PcError& error) {
    return error;
  }
  return {"", -1, "no failure"};
}

constexpr const char* CutOff = "REGEDIT4\r\n[HKEY_CUR";

struct NewPc : TempFolder {
  NewPc() { createPc(path()); }
  std::string text(const char* name) { return readHostFile(dir(), name); }
  std::string registry() { return text("registry.reg"); }
  std::string names() {
    std::vector<std::string> all;
    std::unique_ptr<HostList> listing;
    REQUIRE(dir().list(listing) == HostError::None);
    for (HostEntry entry; listing->next(entry);) all.push_back(entry.name + ' ');
    std::ranges::sort(all);
    return std::accumulate(all.begin(), all.end(), std::string());
  }
  void write(const char* name, std::string_view text) { writeHostFile(dir(), name, text); }
};

void setValue(FolderPc& pc, std::string_view text) {
  RegistryKey key = 0;
  REQUIRE(pc.registry.create(pc.registry.hive(Hive::CurrentUser), "Software\\T", access::All, key) == 0);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  REQUIRE(pc.registry.set(key, "v", ValueType::Binary, {bytes, text.size()}) == 0);
  pc.registry.close(key);
}

}  // namespace

TEST_CASE("a new PC is valid, and only an empty folder becomes one") {
  TempFolder temp;
  const std::string folder = temp.path() + "/new/";
  createPc(folder);
  FolderPc pc(folder);
  checkGolden("new-pc.txt", snapshotOf(pc) + readHostFile(*openHostDir(folder), "pc.txt"));
  const std::time_t seconds = std::time(nullptr);
  const SystemTime now = pc.clock.local();
  CHECK(now.wYear == std::localtime(&seconds)->tm_year + 1900);
  CHECK(now.wHour == std::localtime(&seconds)->tm_hour);
  CHECK_THROWS_WITH_AS(createPc(folder), (folder + ": is not empty").c_str(), PcError);
  const std::string missing = temp.path() + "/missing/",
                    noFolder = missing + ": is no folder that can be opened";
  CHECK_THROWS_WITH_AS(createPc(missing + "new"), noFolder.c_str(), PcError);
  CHECK_THROWS_WITH_AS(FolderPc{missing}, noFolder.c_str(), PcError);
  CHECK_THROWS_AS(FolderPc(temp.path()), PcError);  // neither of the texts is there
}

TEST_CASE("facts are read whatever their case, blanks and line ends") {
  const PcFacts facts(
      "\xEF\xBB\xBF Family=NT\r\n# x\n  Current = C:\\Eigene Dateien\\\xC3\x84\nDrive  d = CDROM\nlocked = "
      "C:\\A\nlocked = c:\\b");
  CHECK(facts.family == &familyNt);
  CHECK(facts.current.text() == "C:\\Eigene Dateien\\\xC4");
  CHECK(facts.drives.at('D') == DriveType::CdRom);
  CHECK(facts.locked == std::set<std::string>{"C:\\A", "C:\\B"});
  CHECK(facts.windows.text() == "C:\\WINDOWS");
}

TEST_CASE("drives lie in folders of the PC's folder, or where the facts tell") {
  TempFolder temp;
  for (const char* folder : {"pc", "disk"}) REQUIRE(temp.dir().makeDir(folder) == HostError::None);
  const auto root = openHostDir(temp.path() + "/pc");
  const auto disk = openHostDir(temp.path() + "/disk");
  writeHostFile(*disk, "F", "x");
  for (const char* folder : {"E", "not a drive"}) REQUIRE(root->makeDir(folder) == HostError::None);
  writeHostFile(*root, "pc.txt",
                "drive C = fixed at ../disk\ndrive D = removable at " + temp.path() +
                    "/disk\ndrive F = fixed at gone\ndrive A = removable\ndrive Z = cdrom\n");
  FolderPc pc(temp.path() + "/pc");
  CHECK(pc.files.fileExists("C:\\f"));
  CHECK(pc.files.fileExists("d:\\F"));
  CHECK(pc.drives.type("D:") == DriveType::Removable);
  CHECK(pc.driveFolders().letters() == std::vector<char>{'A', 'C', 'D', 'E', 'F', 'Z'});
  CHECK(pc.driveFolders().withDisk() == std::vector<char>{'C', 'D', 'E'});
  for (const char* path : {"F:\\f", "Z:\\f"})
    CHECK(failure([&] { pc.files.open(path, OpenMode::Input); }) == 71);
  CHECK(pc.driveFolders().oddities() ==
        std::vector<std::string>{
            "drive F: holds no disk: " + temp.path() + "/pc/gone is no folder that can be opened",
            "drive E: is empty: is its disk mounted?"});
  pc.files.grip("C:\\f")->remove();
  CHECK_FALSE(pc.files.fileExists("D:\\F"));
}

TEST_CASE("a hive shows the part of another one that it is on a running PC, and that part stays") {
  NewPc folder;
  const std::string machine =
      "[HKEY_LOCAL_MACHINE\\Software\\Classes\\txt]\n[HKEY_LOCAL_MACHINE\\Config\\0001\\x]\n";
  const std::string users =
      machine + "[HKEY_USERS\\.DEFAULT\\Of default]\n[HKEY_USERS\\S-1\\Of one\\Below]\n";
  const std::string profiles = "\\Hardware Profiles\\0001\\x]\n[HKEY_LOCAL_MACHINE\\System\\";
  const struct {
    const char* what;
    std::string registry;
    const char* user = "";
  } rows[] = {
      {"as it stands", users},
      {"for the default user", users, ".default"},
      {"for a user", users, "S-1"},
      {"with classes and a configuration of its own",
       "[HKEY_CLASSES_ROOT\\own]\n[HKEY_CURRENT_CONFIG]\n\"own\"=\"\"\n" + machine},
      {"of the NT family", "[HKEY_LOCAL_MACHINE\\System\\CurrentControlSet" + profiles + "ControlSet001]\n"},
      {"on a disk", "[HKEY_LOCAL_MACHINE\\System\\ControlSet001" + profiles + "ControlSet002]\n"},
  };
  std::string told;
  for (const auto& row : rows) {
    folder.write("registry.reg", "REGEDIT4\n" + row.registry);
    FolderPc pc(folder.path(), {}, DamagedTasks::Refused, row.user);
    told += std::string("== ") + row.what + '\n';
    for (const HiveName& hive : HiveNames) {
      for (const std::string& path : pc.registry.shownBy(hive.hive))
        told += std::string(hive.name) + " shows " + path + '\n';
      CHECK(pc.registry.deleteKey(pc.registry.hive(hive.hive), "") == status::AccessDenied);
    }
    if (row.registry != users) continue;
    CHECK(pc.registry.deleteKey(pc.registry.hive(Hive::LocalMachine), "Software") == status::AccessDenied);
    CHECK(pc.registry.deleteKey(pc.registry.hive(Hive::ClassesRoot), "txt") == status::Success);
  }
  checkGolden("hives.txt", told);

  folder.write("registry.reg", "REGEDIT4\n" + users);
  folder.write("pc.txt", "user = S-1\nno rights = HKEY_CURRENT_USER\\Of one\n");
  FolderPc pc(folder.path());
  OpenKey key(pc.registry);
  CHECK(key.open(Hive::Users, "S-1\\Of one\\Below", access::Write) == status::AccessDenied);
  folder.write("pc.txt", "user = S-2\n");
  CHECK(std::string(errorOf(folder.path()).what()) ==
        "the registry: HKEY_USERS has no \"S-2\"; its branches: .DEFAULT, S-1");
}

TEST_CASE("a save changes only what the program changed") {
  NewPc folder;
  const std::string facts =
      "# mine\r\nhidden = C:\\h\r\nsystem = C:\\other\r\nsystem = C:\\H\r\nhidden = C:\\tree\r\n";
  folder.write("pc.txt", facts);
  const std::string handMade = "REGEDIT4\n; by hand\n[HKEY_CURRENT_USER\\Software]\n";
  folder.write("registry.reg", handMade);
  {
    FolderPc pc(folder.path());
    pc.save();
    CHECK(folder.registry() == handMade);
    CHECK(folder.text("pc.txt") == facts);

    pc.files.open("C:\\h", OpenMode::Binary)->close();
    pc.files.grip("C:\\h")->resetAttributes();
    pc.files.createFolder("C:\\tree");
    pc.files.deleteFolder("C:\\tree");
    pc.restart.deleteAtRestart("c:\\h");
    pc.restart.deleteAtRestart("C:\\h");
    setValue(pc, "1");
    pc.save();
  }
  CHECK(folder.text("pc.txt") == "# mine\r\nsystem = C:\\other\r\nremove at restart = C:\\h\n");
  CHECK(contains(folder.registry(), "[HKEY_CURRENT_USER\\Software\\T]\r\n\"v\"=hex:31\r\n"));

  FolderPc again(folder.path());
  setValue(again, "1");  // the same data is no change
  CHECK_FALSE(again.registry.changed());
}

TEST_CASE("what a killed save has left goes, and of several texts each is tried") {
  NewPc folder;
  for (const char* name :
       {"registry.reg.7.new", "tasks.txt.71-2.new", "registry.reg.x.new", "registry.reg.new",
        "registry.reg72.new", "registry.reg.7.news", "aregistry.reg.7.new"}) {
    folder.write(name, CutOff);
  }
  FolderPc pc(folder.path());
  CHECK_FALSE(pc.process.otherInstanceRuns());
  const std::string left =
      "C aregistry.reg.7.new pc.txt registry.reg registry.reg.7.news registry.reg.new registry.reg.x.new "
      "registry.reg72.new ";
  CHECK(folder.names() == left);

  setValue(pc, "1");
  pc.restart.deleteAtRestart("C:\\h");
  REQUIRE(folder.dir().removeFile("registry.reg") == HostError::None);
  for (const char* name : {"registry.reg", "tasks.txt"}) {
    REQUIRE(folder.dir().makeDir(name) == HostError::None);  // cannot be replaced by a file
  }
  CHECK(failure([&] { pc.tasks.add("ZUB").save(); }) == 440);
  std::string told;
  try {
    pc.save();
  } catch (const PcError& error) {
    told = error.what();
  }
  CHECK(told ==
        "registry.reg: cannot be saved: Path/File access error; tasks.txt: cannot be read: Path/File access "
        "error");
  CHECK(contains(folder.text("pc.txt"), "remove at restart"));
  CHECK(folder.names() == left + "tasks.txt ");
  REQUIRE(folder.dir().removeDir("registry.reg") == HostError::None);
  REQUIRE(folder.dir().removeDir("tasks.txt") == HostError::None);
  pc.tasks.add("ZUB").save();
  pc.save();
  CHECK(contains(folder.registry(), "\"v\"=hex:31"));
}

TEST_CASE("a registry that could not be saved is not taken") {
  NewPc folder;
  // A key writes the path of each key above it, a control character makes bytes of a text.
  std::string deep = "[HKEY_USERS";
  for (int level = 0; level < 512; ++level) deep += "\\" + std::string(200, 'k');
  RegistryTree tree =
      readRegistryText("REGEDIT4\n" + deep + "]\n\"v\"=\"a\x01" + std::string(300, 'x') + "\\\\\"\n", "x");
  const std::uint64_t length = writeRegistryText(tree).size();
  CHECK(canBeWritten(tree, length));
  CHECK_FALSE(canBeWritten(tree, length - 1));
}

TEST_CASE("a text that no memory holds is refused") {
  NewPc folder;
  std::unique_ptr<HostFile> file;
  REQUIRE(folder.dir().openFile("registry.reg", HostOpen::ReadWrite, file) == HostError::None);
  REQUIRE(file->write(MostTextBytes, "x") == HostError::None);  // a hole, no bytes of the disk
  CHECK(errorOf(folder.path()).reason() == "is larger than 512 MiB");
}

TEST_CASE("one program works on a PC at a time, on what it has read") {
  NewPc folder;
  auto first = std::make_unique<FolderPc>(folder.path(), "/STARTUP");
  FolderPc second(folder.path());
  CHECK(first->process.commandLine() == "/STARTUP");
  CHECK_FALSE(first->process.otherInstanceRuns());
  CHECK(second.process.otherInstanceRuns());
  first.reset();
  CHECK_FALSE(second.process.otherInstanceRuns());
  CHECK_THROWS_AS(second.process.end(), EndOfProcess);

  setValue(second, "1");
  second.save();
  CHECK_FALSE(second.process.otherInstanceRuns());  // its own change

  NewPc changed;
  FolderPc late(changed.path());
  changed.write("registry.reg", folder.registry());
  CHECK(late.process.otherInstanceRuns());  // a save would undo what another program has changed
}

TEST_CASE("a profile key is set and all other lines stay") {
  const std::string rename = "[rename]\r\nnul=C:\\X\r\n";
  const auto changed = [](std::string_view text) {
    return withProfileKey(text, "rename", "nul", "C:\\X", CodePage1252{});
  };
  CHECK(changed("") == rename);
  CHECK(changed("[a]\nk=1") == "[a]\nk=1\r\n" + rename);
  CHECK(changed("; c\n[Rename]\nx=y\n\n[z]\nnul=1\n") == "; c\n[Rename]\nx=y\nnul=C:\\X\r\n\n[z]\nnul=1\n");
  CHECK(changed("[rename]\r\n NUL = C:\\Y\r\nb=2\r\n") == "[rename]\r\nNUL=C:\\X\r\nb=2\r\n");
}

TEST_CASE("the common bins of fixed drives are emptied and stay; of the others the bin of the PC's user is") {
  const std::pair<const Family*, const char*> rows[] = {{&family9x, "S-1-5-21-7"},
                                                        {&familyNt, ""},
                                                        {&familyNt, "s-1-5-21-7"},
                                                        {&familyNt, ".."},
                                                        {&familyNt, "S-1-x"}};
  std::string told;
  for (const auto& [family, user] : rows) {
    TestPc pc({"drive D = removable", "drive E = fixed"});
    const std::vector<std::string> files = {"C:\\Recycled\\INFO2",
                                            "C:\\Recycled\\Dc0\\x",
                                            "E:\\RECYCLED\\x",
                                            "C:\\Recycler\\S-1-5-21-7\\Dc0\\x",
                                            "C:\\$Recycle.Bin\\S-1-5-21-7\\x",
                                            "C:\\Recycler\\S-1-5-21-8\\x",
                                            "D:\\RECYCLED\\x",
                                            "C:\\x"};
    for (const std::string& file : files) pc.file(file);
    pc.readOnly("C:\\Recycled\\INFO2");
    PcFacts facts("");
    facts.family = family;
    facts.user = user;
    FolderShell shell(*pc.platform().files, *pc.platform().drives, facts);
    CHECK(shell.emptyRecycleBin(7) == 0);
    CHECK(pc.hasFolder("C:\\Recycled"));
    CHECK_FALSE(pc.hasFolder("C:\\Recycled\\Dc0"));
    told += std::string("== ") + family->name.data() + ", user \"" + user + "\"\n";
    for (const std::string& file : files) told += pc.hasFile(file) ? "stays " + file + '\n' : "";
    for (const std::string& bin : shell.unknownBins())
      told += "nobody knows whose of those are " + bin + '\n';
  }
  checkGolden("bins.txt", told);
}

TEST_CASE("dates and times as text") {
  const SystemTime today{2026, 11, 6, 21, 9, 5, 0, 0};
  std::string told;
  std::istringstream texts(
      "09-05-01;25.12.1999;2001-09-05;31/12/2001;12/31/01;1/1/30;1/1/29;1/1/31;1/1/100;0099/1/1;9/5;31/12;13/"
      "13;"
      "2/2004;9/32;2/29/2000;2/29/2001;4/31/2001;0/5/2001;9/0/2001;9/;5;99999/1/1;1/2/3/4;9/5/2001 1/1/2001;"
      "14:20;23:59:59;24:00;0:60;0:0:60;1:2:3:4;1:;12 AM;12 PM;1 pm;0 AM;13 PM;12:30:07 am; 2:20:30 pm ;1:00 "
      "2:00;"
      "2:20PM 9/5/2001;9/5/2001\t2:20 PM;5 September 2001;Sep 5, 01;sep-5-2001 14:20;2001 Sep 5;1 Sep 1;Sep "
      "5;"
      "Sep 31;Sep 32;Sep 2001;Sept 5;0 Sep 2001;5 Sep Oct 2001;1 Sep 2 3;Sep;5 Sep 99 2 PM;Feb 29 2004;May 5 "
      "* 2001");
  for (std::string text; std::getline(texts, text, ';');) {
    told += text + "  =  ";
    try {
      const SystemTime time = parseDateTime(text, today);
      told += shortDate(time) + ' ' + shortTime(time) + ", day " + std::to_string(time.wDayOfWeek) + '\n';
    } catch (const RuntimeError& error) {
      told += error.description() + '\n';
    }
  }
  checkGolden("dates.txt", told);
}

TEST_CASE("tasks last from their save on") {
  NewPc folder;
  FolderPc other(folder.path());
  {
    FolderPc pc(folder.path());
    ScheduleTask& task = pc.tasks.add("ZUB");
    task.parameters(" /SCHEDULER");
    task.triggers().add({0, {2001, 9, 3, 5, 14, 20, 1, 0}});
    task.save();
    task.triggers().remove(1);
    pc.tasks.add("never saved");
  }
  other.tasks.add("Other").save();  // keeps what was saved meanwhile
  FolderPc pc(folder.path());
  REQUIRE(pc.tasks.count() == 2);
  ScheduleTask& task = pc.tasks.at(1);
  CHECK(task.triggers().texts() == std::vector<std::string>{"At 2:20 PM on 9/5/2001"});
  CHECK(contains(folder.text("tasks.txt"), "task = ZUB\napplication = \nparameters =  /SCHEDULER\n"));
  task.comment("two\nlines");
  CHECK(failure([&] { task.save(); }) == 440);
}
