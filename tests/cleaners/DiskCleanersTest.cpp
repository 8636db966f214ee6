#include <doctest/doctest.h>

#include "cleaners/DiskCleaners.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

using Texts = std::vector<std::string>;

// Answers any temp folder, also one that no PC can be told to have.
struct OtherTemp : SystemFolders {
  SystemFolders& rest;
  std::string path;
  std::uint32_t room = 0;

  OtherTemp(SystemFolders& others, std::string temp) : rest(others), path(std::move(temp)) {}
  std::string temp(std::uint32_t asked) override {
    room = asked;
    return path;
  }
  std::string windows() override { return rest.windows(); }
  std::string programFolder() override { return rest.programFolder(); }
  std::string programFile() override { return rest.programFile(); }
  std::string current() override { return rest.current(); }
};

Platform with(const Platform& pc, SystemFolders& folders) {
  return {pc.codePage, pc.registry, pc.files,  pc.drives,   folders, pc.restart, pc.shell,
          pc.clock,    pc.process,  pc.events, pc.messages, pc.tray, pc.tasks};
}

}  // namespace

TEST_CASE("the temp folder is emptied and stays") {
  WashFixture pc;
  for (const char* path : {"TEMP\\a.tmp", "TEMP\\Sub\\Deep\\b.tmp", "TEMPLATES\\kept.doc", "kept.ini"}) {
    pc.pc.file(std::string("C:\\WINDOWS\\") + path, "four");
  }
  pc.pc.readOnly("C:\\WINDOWS\\TEMP\\a.tmp");
  const std::string before = pc.pc.snapshot();
  CleanTempFolder(pc.engine);
  CHECK(pc.takeReport() ==
        "ZUB has cleaned the TEMP folder, with the following results:\r\n\tDeleting file a.tmp\r\n"
        "\tDeleting file b.tmp\r\n\tDeleting Folder Deep\r\n\tDeleting Folder Sub\r\n");
  CHECK(pc.pc.hasFolder("C:\\WINDOWS\\TEMP"));
  CHECK_FALSE(pc.pc.hasFolder("C:\\WINDOWS\\TEMP\\Sub"));
  CHECK(beyond(pc.pc.diffSince(before), {"C:\\WINDOWS\\TEMP\\"}) == "");
  CHECK(pc.engine.TotalBytes == 8);
}

TEST_CASE("a temp folder that looks like a root is refused, one that cannot be told is passed over") {
  enum Outcome { Cleaned, Refused, Silent };
  struct {
    const char* path;
    Outcome outcome;
  } const rows[] = {{"C:\\T\\", Cleaned}, {"C:T\\", Refused}, {"\\\\T\\", Refused}, {"T\\", Refused},
                    {"\\", Refused},      {"", Silent},       {"C:\\", Cleaned}};
  for (const auto& [path, outcome] : rows) {
    for (const int popUps : {0, 1}) {
      CAPTURE(path);
      TestPc pc({"drive D = fixed"});
      pc.file("C:\\T\\trace");
      pc.file("D:\\kept");
      OtherTemp folders(pc.platform().folders, path);
      Options options;
      options.chkSkipMessages.Value(popUps);
      Engine engine(with(pc.platform(), folders), options);
      const std::string before = pc.snapshot();
      CleanTempFolder(engine);
      CHECK(folders.room == 512);
      CHECK(pc.hasFile("C:\\T\\trace") == (outcome != Cleaned));
      CHECK(pc.hasFile("D:\\kept"));
      CHECK(engine.animated->state.Label4.Bold == (outcome != Cleaned));
      CHECK(engine.animated->state.lblCompleted.Caption == (outcome == Cleaned ? "1" : "0"));
      CHECK(engine.clean.txtResult.empty() == (outcome != Cleaned));
      if (outcome != Cleaned) CHECK(pc.diffSince(before) == "");
      REQUIRE(pc.messages.size() == (outcome == Refused && popUps == 1 ? 1U : 0U));
      if (pc.messages.empty()) continue;
      std::string cut(path);
      cut.pop_back();
      CHECK(pc.messages[0].prompt == "Your temp folder is " + cut + "which is the root folder");
      CHECK(pc.messages[0].title == "Cannot delete folder");
    }
  }
}

TEST_CASE(
    "the bins of the fixed drives lose their files, and the system's bin is emptied without a question") {
  WashFixture pc({"drive D = fixed", "drive E = cdrom", "drive F = removable"});
  for (const char* path :
       {"C:\\RECYCLED\\DC0.TXT", "C:\\RECYCLED\\INFO2", "C:\\RECYCLED\\Sub\\kept", "C:\\RECYCLER\\kept",
        "D:\\Recycled\\DD1.TXT", "D:\\kept", "E:\\Recycled\\kept", "F:\\Recycled\\kept"}) {
    pc.pc.file(path, "1234");
  }
  const std::string before = pc.pc.snapshot();
  Recycle recycle(pc.engine);
  CleanRecycleBin(pc.engine, recycle);
  CHECK(pc.takeReport() ==
        "ZUB has cleaned the recycle bin, with the following results:\r\n"
        "\tCleaned Recycle Bin on drive C\r\n\tDeleting file DC0.TXT\r\n\tDeleting file INFO2\r\n"
        "\tCleaned Recycle Bin on drive D\r\n\tDeleting file DD1.TXT\r\n");
  CHECK(beyond(pc.pc.diffSince(before), {"DC0.TXT", "INFO2", "DD1.TXT"}) == "");
  CHECK(pc.engine.TotalBytes == 12);
  CHECK(pc.pc.recycleFlags == std::vector<std::uint32_t>{7});
  CHECK(pc.pc.recycleIconUpdates == 0);
}

TEST_CASE("without a bin folder only the system's bin is emptied; its icon is refreshed after a failure") {
  for (const std::int32_t result : {0, -2147418113}) {
    WashFixture pc;
    pc.pc.recycleResult = result;
    Recycle recycle(pc.engine);
    CleanRecycleBin(pc.engine, recycle);
    CHECK(pc.takeReport() == "ZUB has cleaned the recycle bin, with the following results:\r\n");
    CHECK(pc.pc.recycleFlags == std::vector<std::uint32_t>{7});
    CHECK(pc.pc.recycleIconUpdates == (result == 0 ? 0 : 1));
    CHECK(pc.engine.TotalBytes == 0);
  }
}

TEST_CASE("the disk checker's files go by the names of the current folder, at every fixed root") {
  WashFixture pc({"drive D = fixed", "drive E = cdrom"});
  for (const char* path : {"C:\\SCANDISK.LOG", "C:\\FILE0000.CHK", "C:\\file0001.chk", "C:\\FILE0002.TXT",
                           "C:\\Sub\\FILE0003.CHK", "D:\\scandisk.log", "D:\\FILE0000.CHK",
                           "D:\\FILE0009.CHK", "E:\\scandisk.log"}) {
    pc.pc.file(path, "12345");
  }
  ScanDisk scanDisk(pc.engine);
  pc.pc.file("C:\\FILE0004.CHK");  // too late: the names are those of the start
  const std::string before = pc.pc.snapshot();
  CleanScanDisk(pc.engine, scanDisk);
  CHECK(pc.takeReport() ==
        "ZUB has cleaned the SCANDISK files, with the following results:\r\n"
        "\tDeleting file scandisk.log\r\n\tDeleting file FILE0000.CHK\r\n\tDeleting file file0001.chk\r\n"
        "\tDeleting file scandisk.log\r\n\tDeleting file FILE0000.CHK\r\n");
  CHECK(beyond(pc.pc.diffSince(before), {"C:\\SCANDISK.LOG", "C:\\FILE0000.CHK", "C:\\file0001.chk",
                                         "D:\\scandisk.log", "D:\\FILE0000.CHK"}) == "");
  CHECK_FALSE(pc.pc.hasFile("D:\\scandisk.log"));
  CHECK(pc.engine.TotalBytes == 25);
  // The list is filled anew each time.
  CHECK(scanDisk.lstDelFiles.size() == 6);
  scanDisk.GetFiles();
  CHECK(scanDisk.lstDelFiles ==
        Texts{"C:\\FILE0000.CHK", "C:\\file0001.chk", "D:\\FILE0000.CHK", "D:\\file0001.chk"});
}

TEST_CASE("the names stay those of the folder that was current when the worker was made") {
  WashFixture pc({"current = C:\\Work"});
  pc.pc.file("C:\\Work\\FILE0000.CHK");
  pc.pc.file("C:\\FILE0000.CHK");
  pc.pc.file("C:\\FILE0001.CHK");
  ScanDisk scanDisk(pc.engine);
  CleanScanDisk(pc.engine, scanDisk);
  CHECK_FALSE(pc.pc.hasFile("C:\\FILE0000.CHK"));
  CHECK(pc.pc.hasFile("C:\\FILE0001.CHK"));
  CHECK(pc.pc.hasFile("C:\\Work\\FILE0000.CHK"));
}
