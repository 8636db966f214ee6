// The texts of a PC folder, their refusals and their saves.
#include <doctest/doctest.h>

#include "platform/folder/FolderPc.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "platform/folder/ProfileText.h"
#include "support/TempFolder.h"
#include "support/TestPc.h"

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

constexpr std::uint32_t ReadOnlyAccess = 0x20019;  // without the rights to set values and create keys

void setValue(FolderPc& pc, std::string_view text) {
  RegistryKey key = 0;
  REQUIRE(pc.registry.create(pc.registry.hive(Hive::CurrentUser), "Software\\T", access::All, key) == 0);
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  REQUIRE(pc.registry.set(key, "v", 3, {bytes, text.size()}) == 0);
  pc.registry.close(key);
}

}  // namespace

TEST_CASE("a new PC is valid, and only an empty folder becomes one") {
  TempFolder temp;
  const std::string folder = temp.path() + "/new/";
  createPc(folder);
  FolderPc pc(folder);
  CHECK(pc.files.folderExists("C:\\WINDOWS\\TEMP"));
  CHECK(pc.folders.programFolder() == "C:\\Program Files\\Zubrane");
  CHECK(pc.drives.list() == std::vector<std::string>{"C:"});
  CHECK_THROWS_AS(createPc(folder), PcError);
  CHECK_THROWS_AS(createPc(temp.path() + "/missing/new"), PcError);
  CHECK_THROWS_AS(FolderPc(temp.path()), PcError);  // neither of the texts is there
  CHECK_THROWS_AS(FolderPc(temp.path() + "/missing"), PcError);
}

TEST_CASE("bad facts are refused with their line") {
  struct Row {
    const char* text;
    int line;
  };
  const Row rows[] = {
      {"famly = 9x\n", 1},
      {"family = me\n", 1},
      {"family = nt\nfamily = 9x\n", 2},
      {"# comment\r\n\r\nwindows = WINDOWS\r\n", 3},
      {"windows = \\\\server\\x\n", 1},
      {"temp = C:\\a|b\n", 1},
      {"current\n", 1},
      {"drive CD = fixed\n", 1},
      {"drive C = floppy\n", 1},
      {"drive C = fixed\nDRIVE c = fixed\n", 2},
      {"read only = C:\n", 1},
      {"no rights = HKLM\\Software\n", 1},
      {"no rights =\n", 1},
      {"= x\n", 1},
  };
  TempFolder temp;
  createPc(temp.path());
  for (const Row& row : rows) {
    CAPTURE(row.text);
    writeHostFile(temp.dir(), "pc.txt", row.text);
    const PcError error = errorOf(temp.path());
    CHECK(error.file() == "pc.txt");
    CHECK(error.line() == row.line);
  }
}

TEST_CASE("facts are read whatever their case, blanks and line ends") {
  const PcFacts facts(
      "\xEF\xBB\xBF Family=NT\r\n# x\n  Current = C:\\Eigene Dateien\\\xC3\x84\nDrive  d = CDROM\nlocked = "
      "C:\\A\nlocked = c:\\b");
  CHECK(facts.nt);
  CHECK(facts.current.text() == "C:\\Eigene Dateien\\\xC4");
  CHECK(facts.drives.at('D') == DriveType::CdRom);
  CHECK(facts.locked == std::set<std::string>{"C:\\A", "C:\\B"});
  CHECK(facts.windows.text() == "C:\\WINDOWS");
}

TEST_CASE("a save changes only what the program changed") {
  TempFolder temp;
  createPc(temp.path());
  const std::string facts = "# mine\r\nhidden = C:\\h\r\nsystem = C:\\other\r\n";
  writeHostFile(temp.dir(), "pc.txt", facts);
  const std::string handMade = "REGEDIT4\n; by hand\n[HKEY_CURRENT_USER\\Software]\n";
  writeHostFile(temp.dir(), "registry.reg", handMade);
  {
    FolderPc pc(temp.path());
    pc.save();
    CHECK(readHostFile(temp.dir(), "registry.reg") == handMade);
    CHECK(readHostFile(temp.dir(), "pc.txt") == facts);

    pc.files.open("C:\\h", OpenMode::Output)->close();
    pc.files.resetAttributes("C:\\h");
    pc.restart.deleteAtRestart("c:\\h");
    pc.restart.deleteAtRestart("C:\\h");
    setValue(pc, "1");
    pc.save();
  }
  CHECK(readHostFile(temp.dir(), "pc.txt") == "# mine\r\nsystem = C:\\other\r\nremove at restart = C:\\h\n");
  const std::string saved = readHostFile(temp.dir(), "registry.reg");
  CHECK(saved.find("[HKEY_CURRENT_USER\\Software\\T]\r\n\"v\"=hex:31\r\n") != std::string::npos);

  FolderPc again(temp.path());
  setValue(again, "1");  // the same data is no change
  CHECK_FALSE(again.registry.changed());
}

TEST_CASE("what a killed save has left does not matter, and what cannot be saved leaves the old text") {
  TempFolder temp;
  createPc(temp.path());
  const std::string before = readHostFile(temp.dir(), "registry.reg");
  writeHostFile(temp.dir(), "registry.reg.new", "REGEDIT4\r\n[HKEY_CUR");
  FolderPc pc(temp.path());
  setValue(pc, "1");
  CHECK(readHostFile(temp.dir(), "registry.reg") == before);
  pc.save();
  const std::string after = readHostFile(temp.dir(), "registry.reg");
  CHECK(after != before);
  HostStat stat;
  CHECK(temp.dir().stat("registry.reg.new", stat) == HostError::NotFound);

  REQUIRE(temp.dir().makeDir("registry.reg.new") == HostError::None);
  setValue(pc, "2");
  CHECK_THROWS_AS(pc.save(), PcError);
  CHECK(readHostFile(temp.dir(), "registry.reg") == after);
  REQUIRE(temp.dir().removeDir("registry.reg.new") == HostError::None);
  pc.save();
  CHECK(readHostFile(temp.dir(), "registry.reg") != after);
}

TEST_CASE("a damaged text is never written over") {
  TempFolder temp;
  createPc(temp.path());
  for (const char* name : {"registry.reg", "tasks.txt"}) {
    CAPTURE(name);
    const std::string good = readHostFile(temp.dir(), name);
    writeHostFile(temp.dir(), name, "REGEDIT4\r\n[HKEY_CUR");
    const PcError error = errorOf(temp.path());
    CHECK(error.file() == name);
    CHECK(error.line() > 0);
    CHECK(readHostFile(temp.dir(), name) == "REGEDIT4\r\n[HKEY_CUR");
    if (good.empty()) {
      temp.dir().removeFile(name);
    } else {
      writeHostFile(temp.dir(), name, good);
    }
  }
}

TEST_CASE("one program works on a PC at a time") {
  TempFolder temp;
  createPc(temp.path());
  auto first = std::make_unique<FolderPc>(temp.path(), "/STARTUP");
  FolderPc second(temp.path());
  CHECK(first->process.commandLine() == "/STARTUP");
  CHECK_FALSE(first->process.otherInstanceRuns());
  CHECK(second.process.otherInstanceRuns());
  first.reset();
  CHECK_FALSE(second.process.otherInstanceRuns());
  CHECK_THROWS_AS(second.process.end(), EndOfProcess);
}

TEST_CASE("a profile key is set and all other lines stay") {
  const std::string rename = "[rename]\r\nnul=C:\\X\r\n";
  CHECK(withProfileKey("", "rename", "nul", "C:\\X") == rename);
  CHECK(withProfileKey("[a]\nk=1", "rename", "nul", "C:\\X") == "[a]\nk=1\r\n" + rename);
  CHECK(withProfileKey("; c\n[Rename]\nx=y\n\n[z]\nnul=1\n", "rename", "nul", "C:\\X") ==
        "; c\n[Rename]\nx=y\nnul=C:\\X\r\n\n[z]\nnul=1\n");
  CHECK(withProfileKey("[rename]\r\n NUL = C:\\Y\r\nb=2\r\n", "rename", "nul", "C:\\X") ==
        "[rename]\r\nNUL=C:\\X\r\nb=2\r\n");

  TestPc pc;
  pc.file("C:\\WINDOWS\\wininit.ini", "[other]\r\na=b\r\n");
  pc.platform().restart.writeProfile("rename", "nul", "C:\\X", "wininit.ini");
  CHECK(pc.bytes("C:\\WINDOWS\\wininit.ini") == "[other]\r\na=b\r\n" + rename);
}

TEST_CASE("the bins of fixed drives are emptied and stay") {
  TempFolder temp;
  createPc(temp.path());
  writeHostFile(temp.dir(), "pc.txt", "drive D = removable\n");
  REQUIRE(temp.dir().makeDir("D") == HostError::None);
  FolderPc pc(temp.path());
  for (const char* folder : {"C:\\Recycled", "C:\\Recycled\\Dc0", "D:\\RECYCLED"})
    pc.files.createFolder(folder);
  for (const char* file : {"C:\\Recycled\\INFO2", "C:\\Recycled\\Dc0\\x", "D:\\RECYCLED\\kept", "C:\\kept"}) {
    pc.files.open(file, OpenMode::Output)->close();
  }
  CHECK(pc.shell.emptyRecycleBin(7) == 0);
  CHECK_FALSE(pc.files.find("C:\\Recycled\\*"));
  CHECK(pc.files.folderExists("C:\\Recycled"));
  CHECK(pc.files.fileExists("D:\\RECYCLED\\kept"));
  CHECK(pc.files.fileExists("C:\\kept"));
}

TEST_CASE("keys without rights") {
  TestPc pc({"family = nt", "no rights = HKEY_LOCAL_MACHINE\\Software\\Closed"});
  pc.value("HKEY_LOCAL_MACHINE\\Software\\Closed\\Below", "v", "x");
  Registry& registry = pc.platform().registry;
  const RegistryKey machine = registry.hive(Hive::LocalMachine);
  RegistryKey key = 0;
  CHECK(registry.open(machine, "software\\closed", access::All, key) == status::AccessDenied);
  CHECK(registry.open(machine, "Software\\Closed\\Below", access::Write, key) == status::AccessDenied);
  CHECK(registry.create(machine, "Software\\Closed\\New", access::All, key) == status::AccessDenied);
  CHECK(registry.deleteKey(machine, "Software\\Closed\\Below") == status::AccessDenied);
  CHECK(registry.create(machine, "Software\\Closed2", access::All, key) == status::Success);
  registry.close(key);
  REQUIRE(registry.open(machine, "Software\\Closed", ReadOnlyAccess, key) == status::Success);
  CHECK(registry.set(key, "v", 1, {}) == status::AccessDenied);
  registry.close(key);
  CHECK(registry.close(key) == status::InvalidHandle);
  CHECK_FALSE(pc.hasKey("HKEY_LOCAL_MACHINE\\Software\\Closed\\New"));
}

TEST_CASE("an open key that is deleted answers so, and its handle can be closed") {
  TestPc pc;
  pc.value("HKEY_CURRENT_USER\\A\\B", "v", "x");
  Registry& registry = pc.platform().registry;
  RegistryKey inner = 0;
  REQUIRE(registry.open(registry.hive(Hive::CurrentUser), "A\\B", access::All, inner) == status::Success);
  REQUIRE(registry.deleteKey(registry.hive(Hive::CurrentUser), "A") == status::Success);
  CHECK(registry.deleteValue(inner, "v") == status::KeyDeleted);
  CHECK(registry.deleteKey(inner, "") == status::KeyDeleted);
  CHECK(registry.close(inner) == status::Success);
  CHECK(registry.close(inner) == status::InvalidHandle);
}

TEST_CASE("dates and times as text") {
  const SystemTime today{2026, 11, 6, 21, 9, 5, 0, 0};
  CHECK(shortDate(today) == "11/21/2026");
  CHECK(shortTime(today) == "9:05:00 AM");
  CHECK(shortTime({2001, 1, 1, 1, 0, 0, 7, 0}) == "12:00:07 AM");
  CHECK(shortTime({2001, 1, 1, 1, 12, 30, 0, 0}) == "12:30:00 PM");

  struct Row {
    const char* text;
    SystemTime time;
  };
  const Row rows[] = {
      {"9/5/2001", {2001, 9, 3, 5, 0, 0, 0, 0}},
      {"09-05-01", {2001, 9, 3, 5, 0, 0, 0, 0}},
      {"25.12.1999", {1999, 12, 6, 25, 0, 0, 0, 0}},
      {"2001-09-05", {2001, 9, 3, 5, 0, 0, 0, 0}},
      {"1/1/30", {1930, 1, 3, 1, 0, 0, 0, 0}},
      {"1/1/29", {2029, 1, 1, 1, 0, 0, 0, 0}},
      {"9/5", {2026, 9, 6, 5, 0, 0, 0, 0}},
      {"2/2004", {2004, 2, 0, 1, 0, 0, 0, 0}},
      {"14:20", {1899, 12, 6, 30, 14, 20, 0, 0}},
      {" 2:20:30 pm ", {1899, 12, 6, 30, 14, 20, 30, 0}},
      {"12 AM", {1899, 12, 6, 30, 0, 0, 0, 0}},
      {"9/5/2001 2:20 PM", {2001, 9, 3, 5, 14, 20, 0, 0}},
      {"2:20PM 9/5/2001", {2001, 9, 3, 5, 14, 20, 0, 0}},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    CHECK(parseDateTime(row.text, today) == row.time);
  }
  for (const char* text :
       {"", " ", "x", "5", "13/13/2001", "2/29/2001", "24:00", "1:60", "13 PM", "9/5/2001 x",
        "9/5/2001 1/1/2001", "1:00 2:00", "9/", "1:", "99999/1/1", "0/5/2001"}) {
    CAPTURE(text);
    CHECK_THROWS_AS(parseDateTime(text, today), RuntimeError);
  }
}

TEST_CASE("tasks last from their save on") {
  TempFolder temp;
  createPc(temp.path());
  {
    FolderPc pc(temp.path());
    ScheduleTask& task = pc.tasks.add("ZUB");
    task.application("C:\\Program Files\\Zubrane\\zub.exe");
    task.parameters(" /SCHEDULER");
    task.save(0);
    const auto trigger = task.triggers().add();
    trigger->type(0);
    trigger->beginDate({2001, 9, 3, 5, 1, 1, 1, 0});
    trigger->startTime({1899, 12, 6, 30, 14, 20, 0, 0});
    CHECK(trigger->text() == "At 2:20 PM on 9/5/2001");
    task.triggers().add()->beginDate({2001, 9, 4, 6, 0, 0, 0, 0});
    task.save(0);
    task.triggers().remove(2);
    pc.tasks.add("never saved");
    CHECK_THROWS_AS(task.triggers().at(2), RuntimeError);
  }
  FolderPc pc(temp.path());
  REQUIRE(pc.tasks.count() == 1);
  ScheduleTask& task = pc.tasks.at(1);
  CHECK(task.name() == "ZUB");
  REQUIRE(task.triggers().count() == 2);
  CHECK(task.triggers().at(1)->text() == "At 2:20 PM on 9/5/2001");
  CHECK(task.triggers().at(2)->text() == "At 12:00 AM on 9/6/2001");
  CHECK(readHostFile(temp.dir(), "tasks.txt").find("parameters =  /SCHEDULER\n") != std::string::npos);
  task.comment("two\nlines");
  CHECK_THROWS_AS(task.save(0), RuntimeError);
  pc.tasks.refresh();
  CHECK(pc.tasks.count() == 1);
  CHECK_THROWS_AS(pc.tasks.at(2), RuntimeError);

  for (const char* text :
       {"nothing\n", "comment = before a task\n", "task =\n", "task = a\ntask = a\n",
        "task = a\ntrigger = 0 2001-13-05 14:20\n", "task = a\ntrigger = 0 2001-09-05 14:2\n"}) {
    CAPTURE(text);
    CHECK_THROWS_AS(readTasksText(text, "tasks.txt"), PcError);
  }
}
