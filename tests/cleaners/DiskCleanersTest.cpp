#include <doctest/doctest.h>

#include "cleaners/CleanerPc.h"
#include "cleaners/DiskCleaners.h"
#include "cleaners/HistoryCleaners.h"
#include "platform/folder/FolderServices.h"

using namespace zub;

namespace {

// Answers any temp folder, also one that no PC can be told to have.
struct OtherTemp : FolderSystemFolders {
  std::string path;
  std::uint32_t room = 0;

  OtherTemp(const PcFacts& facts, std::string temp) : FolderSystemFolders(facts), path(std::move(temp)) {}
  std::string temp(std::uint32_t asked) override {
    room = asked;
    return path;
  }
};

Platform with(Platform pc, SystemFolders& folders) {
  pc.folders = &folders;
  return pc;
}

}  // namespace

TEST_CASE("the temp folder is emptied and stays, and is made where it is missing") {
  CleanerPc pc;
  const std::string temp = "C:\\WINDOWS\\TEMP\\";
  const Paths traces{temp + "a.tmp", temp + "Sub\\", temp + "Sub\\b.tmp"};
  pc.plant(traces);
  pc.plant({"C:\\WINDOWS\\TEMPLATES\\kept.doc"});
  const auto clean = [&] { CleanTempFolder(pc.engine); };
  CHECK(pc.removedBy(clean) == listed(traces));
  pc.pc.platform().files->deleteFolder(temp);
  CHECK(pc.removedBy(clean) == "+ " + temp + "\n");
}

TEST_CASE("a temp folder that looks like a root is refused, one that cannot be told is passed over") {
  enum Outcome { Cleaned, Refused, Silent };
  const struct {
    std::string path;
    Outcome outcome;
  } rows[] = {{"C:\\T\\", Cleaned}, {"C:T\\", Refused}, {"\\\\T\\", Refused}, {"T\\", Refused},
              {"\\", Refused},      {"", Silent},       {"C:\\", Cleaned}};
  for (const auto& [path, outcome] : rows) {
    CAPTURE(path);
    TestPc pc;
    pc.file("C:\\T\\trace");
    const PcFacts facts("");
    OtherTemp folders(facts, path);
    Options options;
    Engine engine(with(pc.platform(), folders), options);
    options.chkSkipMessages.Value(1);
    CleanTempFolder(engine);
    CHECK(folders.room == 512);
    CHECK(pc.hasFile("C:\\T\\trace") == (outcome != Cleaned));
    CHECK(engine.animated->state.Label4.Bold == (outcome != Cleaned));
    CHECK(engine.animated->state.lblCompleted.Caption == (outcome == Cleaned ? "1" : "0"));
    CHECK(engine.clean.txtResult.empty() == (outcome != Cleaned));
    REQUIRE(pc.messages.size() == (outcome == Refused ? 1U : 0U));
    if (outcome != Refused) continue;
    const std::string cut = path.substr(0, path.size() - 1);
    CHECK(pc.messages[0].prompt == "Your temp folder is " + cut + "which is the root folder");
    CHECK(pc.messages[0].title == "Cannot delete folder");
    options.chkSkipMessages.Value(0);
    CleanTempFolder(engine);
    CHECK(pc.messages.size() == 1);
  }
}

TEST_CASE(
    "the bins of the fixed drives lose their files, and the system's bin is emptied without a question") {
  CleanerPc pc({"drive D = fixed", "drive E = cdrom", "drive F = removable", "drive G = fixed",
                "hidden = C:\\RECYCLED\\INFO2"});
  const Paths traces{"C:\\RECYCLED\\DC0.TXT", "C:\\RECYCLED\\INFO2", "D:\\Recycled\\DD1.TXT"};
  pc.plant(traces);
  pc.plant({"C:\\RECYCLED\\Sub\\kept", "C:\\RECYCLER\\kept", "E:\\Recycled\\kept", "F:\\Recycled\\kept",
            "G:\\kept"});
  Recycle recycle(pc.engine);
  const auto clean = [&] { CleanRecycleBin(pc.engine, recycle); };
  CHECK(pc.removedBy(clean) == listed(traces));
  CHECK(pc.takeReport() ==
        "ZUB has cleaned the recycle bin, with the following results:\r\n"
        "\tCleaned Recycle Bin on drive C\r\n\tDeleting file DC0.TXT\r\n\tDeleting file INFO2\r\n"
        "\tCleaned Recycle Bin on drive D\r\n\tDeleting file DD1.TXT\r\n");
  CHECK(pc.engine.TotalBytes == 3);
  CHECK(pc.pc.recycleFlags == std::vector<std::uint32_t>{7});
  CHECK(pc.pc.recycleIconUpdates == 0);

  // The icon is refreshed after a failure, which counts, but for the system's answer that nothing was there.
  pc.pc.recycleResult = -2147418113;
  clean();
  CHECK(pc.pc.recycleIconUpdates == 1);
  CHECK(pc.engine.leftBehind.size() == 0);
  pc.pc.recycleResult = -2147467259;
  clean();
  CHECK(pc.engine.leftBehind.size() == 1);
}

TEST_CASE("the disk checker's files go by the names of the first current folder, at every fixed root") {
  CleanerPc pc({"drive D = fixed", "drive E = cdrom", "current = C:\\Work"});
  const Paths traces{"C:\\SCANDISK.LOG", "C:\\FILE0000.CHK", "C:\\file0001.chk", "D:\\scandisk.log",
                     "D:\\FILE0000.CHK"};
  pc.plant(traces);
  pc.plant({"C:\\Work\\FILE0000.CHK", "C:\\Work\\FILE0001.CHK", "C:\\Work\\FILE0002.TXT", "C:\\FILE0002.TXT",
            "C:\\FILE0009.CHK", "E:\\scandisk.log", "E:\\FILE0000.CHK"});
  ScanDisk scanDisk(pc.engine);
  pc.plant({"C:\\Work\\FILE0009.CHK"});  // too late: the names are those of the start
  const auto clean = [&] { CleanScanDisk(pc.engine, scanDisk); };
  CHECK(pc.removedBy(clean) == listed(traces));
  CHECK(scanDisk.lstDelFiles.size() == 6);
  clean();
  CHECK(scanDisk.lstDelFiles ==
        Paths{"C:\\FILE0000.CHK", "C:\\FILE0001.CHK", "D:\\FILE0000.CHK", "D:\\FILE0001.CHK"});
}

TEST_CASE("a folder of recent documents is made where it is missing, an Office one is not") {
  CleanerPc pc;
  pc.pc.shellFolder("Recent", "C:\\WINDOWS\\Recent");
  pc.pc.shellFolder("AppData", "C:\\WINDOWS");
  pc.plant({"C:\\WINDOWS\\Microsoft\\Office\\"});
  CHECK(pc.removedBy([&] {
    CleanDocumentHistory(pc.engine);
    CleanOffice(pc.engine);
  }) == "+ C:\\WINDOWS\\Recent\\\n");
}
