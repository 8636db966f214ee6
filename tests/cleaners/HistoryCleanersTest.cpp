#include <doctest/doctest.h>

#include "cleaners/CleanerPc.h"
#include "cleaners/HistoryCleaners.h"

using namespace zub;

namespace {

const std::string Explorer = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string Player = "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\";
const std::string Office = "HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\";
const std::string Recent = "C:\\WINDOWS\\Recent\\";
const std::string OfficeRecent = "C:\\WINDOWS\\Application Data\\Microsoft\\Office\\Recent\\";

Paths officeTraces() {
  Paths traces{OfficeRecent + "Plan.LNK"};
  for (const char* program : {"Word", "Excel", "PowerPoint", "Access"}) {
    for (const char* version : {"10.0", "9.0", "8.0"}) {
      traces.push_back(Office + version + "\\" + program + "\\Data \"Settings\"");
    }
  }
  return traces;
}

}  // namespace

TEST_CASE("each history task takes its own traces, and reports what it tries, found or not") {
  const struct {
    void (*clean)(Engine&);
    Paths traces;
    std::string report;
  } tasks[] = {
      {CleanDocumentHistory,
       {Explorer + "RecentDocs", Explorer + "StreamMRU", Explorer + "Streams", Recent + "Letter.lnk",
        Recent + "Sub\\", Recent + "Sub\\Deep.lnk"},
       "ZUB has cleaned the document history, with the following results:\r\n"
       "\tRemoving registry entries - Recently opened documents\r\n"
       "\tRemoving registry entries - Stream MRU\r\n"
       "\tRemoving registry entries - Streams\r\n"},
      {CleanFindHistory,
       {Explorer + "Doc Find Spec MRU"},
       "ZUB has cleaned the Find history, with the following results:\r\n"
       "\tRemoving registry entries\r\n"},
      {CleanRunHistory,
       {Explorer + "RunMRU"},
       "ZUB has cleaned the Run MRU, with the following results:\r\n"
       "\tRemoving registry entries\r\n"},
      {CleanMediaPlayer,
       {Player + "RecentFileList", Player + "RecentURLList"},
       "ZUB has cleaned the Windows Media Player MRU, with the following results:\r\n"
       "\tRemoved registry entries - RecentFileList\r\n"
       "\tRemoved registry entries - RecentURLList\r\n"},
      {CleanOffice, officeTraces(),
       "ZUB has cleaned the Office MRU, with the following results:\r\n"
       "\tRemoved Files - Recent File History\r\n"
       "\tRemoved registry entries - Recent File List\r\n"},
  };
  for (const auto& task : tasks) {
    CAPTURE(task.report);
    CleanerPc pc;
    pc.pc.shellFolder("Recent", "C:\\WINDOWS\\Recent");
    pc.pc.shellFolder("AppData", "C:\\WINDOWS\\Application Data");
    for (const auto& each : tasks) pc.plant(each.traces);
    pc.plant({Explorer + "StreamsKept", Player + "Settings", Office + "9.0\\Word\\Data \"Kept\"",
              Office + "9.0\\Word\\Options", OfficeRecent + "..\\Word.qat",
              "C:\\WINDOWS\\RecentKept\\a.lnk"});
    CHECK(pc.removedBy([&] { task.clean(pc.engine); }) == listed(task.traces));
    CHECK(pc.progress().lblCompleted.Caption == "1");

    CleanerPc bare;
    CHECK(bare.removedBy([&] { task.clean(bare.engine); }) == "");
    CHECK(bare.takeReport() == task.report);
    CHECK(bare.engine.leftBehind.size() == 0);
  }
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
