#include <doctest/doctest.h>

#include "cleaners/DiskCleaners.h"
#include "cleaners/HistoryCleaners.h"
#include "platform/folder/FolderServices.h"
#include "support/Golden.h"
#include "support/TracedWash.h"

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

struct Cleaned : TracedWash {
  using TracedWash::TracedWash;
  void plant(std::initializer_list<const char*> files) {
    for (const char* file : files) pc.file(file);
  }
};

}  // namespace

TEST_CASE("a temp folder that looks like a root is refused, one that cannot be told is passed over") {
  std::string told;
  for (const std::string path : {"C:\\T\\", "C:\\New\\", "C:T\\", "\\\\T\\", "T\\", "\\", "", "C:\\"}) {
    for (const int popUps : {1, 0}) {
      if (popUps == 0 && path != "C:T\\") continue;
      TestPc pc;
      pc.file("C:\\T\\trace");
      const PcFacts facts("");
      OtherTemp folders(facts, path);
      Options options;
      Engine engine(with(pc.platform(), folders), options);
      options.chkSkipMessages.Value(popUps);
      CallTrace trace(pc, engine, [](const frmAnimated::State& shown) {
        return shown.lblApplication.Caption + (shown.Label4.Bold ? ", bold, " : ", ") +
               shown.lblCompleted.Caption + " done";
      });
      trace.act("[" + path + "]", [&] { CleanTempFolder(engine); });
      CHECK(folders.room == 512);
      told += trace.text + "\n";
    }
  }
  checkGolden("temp.txt", told);
}

TEST_CASE("the bins, the disk checker's files and the folders of recent documents") {
  Cleaned pc({"drive D = fixed", "drive E = cdrom", "drive F = removable", "drive G = fixed",
              "current = C:\\Work", "hidden = C:\\RECYCLED\\INFO2", "hidden = C:\\Work\\HIDDEN.CHK"});
  pc.plant({"C:\\RECYCLED\\DC0.TXT", "C:\\RECYCLED\\INFO2", "D:\\Recycled\\DD1.TXT",
            "C:\\RECYCLED\\Sub\\kept", "C:\\RECYCLER\\kept", "E:\\Recycled\\kept", "F:\\Recycled\\kept",
            "G:\\kept"});
  pc.trace.act("The bins are looked for when they are first cleaned", [] {});
  Recycle recycle(pc.engine);
  for (const std::int32_t answer : {0, -2147418113, -2147467259}) {  // the second: there was nothing to empty
    pc.pc.recycleResult = answer;
    pc.trace.act("The bins of the fixed drives; the system answers " + std::to_string(answer),
                 [&] { CleanRecycleBin(pc.engine, recycle); });
  }
  pc.plant({"C:\\SCANDISK.LOG", "C:\\FILE0000.CHK", "C:\\file0001.chk", "D:\\scandisk.log",
            "D:\\FILE0000.CHK", "C:\\Work\\FILE0000.CHK", "C:\\Work\\FILE0001.CHK", "C:\\Work\\FILE0002.TXT",
            "C:\\Work\\HIDDEN.CHK", "C:\\FILE0002.TXT", "C:\\FILE0009.CHK", "E:\\scandisk.log",
            "E:\\FILE0000.CHK"});
  pc.trace.act("The disk checker's names are those of the first time", [] {});
  ScanDisk scanDisk(pc.engine);
  pc.plant({"C:\\Work\\FILE0009.CHK"});  // too late
  for (const char* time : {"first", "second"}) {
    pc.trace.act(std::string("The disk checker's names at every fixed root, the ") + time + " time",
                 [&] { CleanScanDisk(pc.engine, scanDisk); });
  }
  pc.pc.shellFolder("Recent", "C:\\WINDOWS\\Recent");
  pc.pc.shellFolder("AppData", "C:\\WINDOWS");
  pc.pc.folder("C:\\WINDOWS\\Microsoft\\Office");
  pc.trace.act("A missing folder of recent documents is made", [&] { CleanDocumentHistory(pc.engine); });
  pc.trace.act("A missing one of Office is not", [&] { CleanOffice(pc.engine); });
  checkGolden("pc.txt", pc.trace.text);
}
