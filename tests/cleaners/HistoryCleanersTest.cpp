#include <doctest/doctest.h>

#include "base/Text.h"
#include "cleaners/HistoryCleaners.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

const std::string Explorer = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
const std::string Player = "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\";
const std::string Office = "HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\";

std::vector<std::string> officeData() {
  std::vector<std::string> keys;
  for (const char* program : {"Word", "Excel", "PowerPoint", "Access"}) {
    for (const char* version : {"10.0", "9.0", "8.0"}) {
      keys.push_back(Office + version + "\\" + program + "\\Data");
    }
  }
  return keys;
}

// Traces of every kind, each with a decoy beside it.
struct Traces : WashFixture {
  Traces() {
    pc.shellFolder("Recent", "C:\\WINDOWS\\Recent");
    pc.shellFolder("AppData", "C:\\WINDOWS\\Application Data");
    for (const char* key : {"RecentDocs", "StreamMRU", "Streams", "Doc Find Spec MRU", "RunMRU"}) {
      pc.value(Explorer + key, "a", "trace");
      pc.value(Explorer + key + "Kept", "a", "decoy");
    }
    pc.key(Explorer + "RecentDocs\\.txt");
    pc.value(Player + "RecentFileList", "File0", "trace");
    pc.value(Player + "RecentURLList", "URL0", "trace");
    pc.value(Player + "Settings", "Volume", "decoy");
    for (const std::string& key : officeData()) {
      pc.value(key, "Settings", "trace");
      pc.value(key, "Beside", "with the key");
      pc.value(withoutLastPathPart(key), "Options", "decoy");
    }
    for (const char* file : {"WINDOWS\\Recent\\Letter.lnk", "WINDOWS\\Recent\\Sub\\Deep.lnk",
                             "WINDOWS\\Application Data\\Microsoft\\Office\\Recent\\Plan.LNK",
                             "WINDOWS\\Application Data\\Microsoft\\Office\\Word.qat",
                             "WINDOWS\\RecentKept\\Letter.lnk", "My Documents\\Letter.doc"}) {
      pc.file(std::string("C:\\") + file);
    }
    cleaner(Task::DocumentHistory, [this] { CleanDocumentHistory(engine); });
    cleaner(Task::FindHistory, [this] { CleanFindHistory(engine); });
    cleaner(Task::RunHistory, [this] { CleanRunHistory(engine); });
    cleaner(Task::Office, [this] { CleanOffice(engine); });
    cleaner(Task::MediaPlayer, [this] { CleanMediaPlayer(engine); });
  }
};

}  // namespace

TEST_CASE("a wash of the histories takes the traces and leaves what lies beside them") {
  Traces pc;
  const std::string before = pc.pc.snapshot();
  pc.engine.animated->StartClean();
  CHECK(pc.progress().lblCompleted.Caption == "5");
  for (const char* key : {"RecentDocs", "StreamMRU", "Streams", "Doc Find Spec MRU", "RunMRU"}) {
    CAPTURE(key);
    CHECK_FALSE(pc.pc.hasKey(Explorer + key));
    CHECK(pc.pc.hasValue(Explorer + key + "Kept", "a"));
  }
  CHECK_FALSE(pc.pc.hasKey(Player + "RecentFileList"));
  CHECK_FALSE(pc.pc.hasKey(Player + "RecentURLList"));
  CHECK(pc.pc.hasFolder("C:\\WINDOWS\\Recent"));
  CHECK_FALSE(pc.pc.hasFile("C:\\WINDOWS\\Recent\\Letter.lnk"));
  CHECK_FALSE(pc.pc.hasFolder("C:\\WINDOWS\\Recent\\Sub"));
  CHECK(pc.pc.hasFolder("C:\\WINDOWS\\Application Data\\Microsoft\\Office\\Recent"));
  CHECK_FALSE(pc.pc.hasFile("C:\\WINDOWS\\Application Data\\Microsoft\\Office\\Recent\\Plan.LNK"));
  // The key forms before it make the Office task wipe whole keys.
  for (const std::string& key : officeData()) CHECK_FALSE(pc.pc.hasKey(key));
  const std::string more =
      beyond(pc.pc.diffSince(before),
             {Explorer + "RecentDocs", Explorer + "StreamMRU", Explorer + "Streams",
              Explorer + "Doc Find Spec MRU", Explorer + "RunMRU", Player + "Recent", "\\Data",
              "C:\\WINDOWS\\Recent\\", "C:\\WINDOWS\\Application Data\\Microsoft\\Office\\Recent\\"});
  CHECK(more == "");
}

TEST_CASE("the Office task by itself takes the one value of each key") {
  Traces pc;
  CleanOffice(pc.engine);
  for (const std::string& key : officeData()) {
    CHECK_FALSE(pc.pc.hasValue(key, "Settings"));
    CHECK(pc.pc.hasValue(key, "Beside"));
  }
}

TEST_CASE("each task reports what it tries, found or not") {
  struct {
    void (*clean)(Engine&);
    const char* report;
  } const rows[] = {
      {CleanDocumentHistory,
       "ZUB has cleaned the document history, with the following results:\r\n"
       "\tRemoving registry entries - Recently opened documents\r\n"
       "\tRemoving registry entries - Stream MRU\r\n"
       "\tRemoving registry entries - Streams\r\n"},
      {CleanFindHistory,
       "ZUB has cleaned the Find history, with the following results:\r\n"
       "\tRemoving registry entries\r\n"},
      {CleanRunHistory,
       "ZUB has cleaned the Run MRU, with the following results:\r\n"
       "\tRemoving registry entries\r\n"},
      {CleanMediaPlayer,
       "ZUB has cleaned the Windows Media Player MRU, with the following results:\r\n"
       "\tRemoved registry entries - RecentFileList\r\n"
       "\tRemoved registry entries - RecentURLList\r\n"},
      {CleanOffice,
       "ZUB has cleaned the Office MRU, with the following results:\r\n"
       "\tRemoved Files - Recent File History\r\n"
       "\tRemoved registry entries - Recent File List\r\n"},
  };
  for (const auto& [clean, report] : rows) {
    WashFixture pc;
    pc.pc.file("C:\\decoy.txt");
    const std::string before = pc.pc.snapshot();
    clean(pc.engine);
    CHECK(pc.takeReport() == report);
    CHECK(pc.progress().lblCompleted.Caption == "1");
    CHECK(pc.pc.diffSince(before) == "");
    CHECK(pc.engine.leftBehind == 0);
  }
}

TEST_CASE("a folder of recent documents is made where it is missing, an Office one is not") {
  WashFixture pc;
  pc.pc.shellFolder("Recent", "C:\\WINDOWS\\Recent");
  pc.pc.shellFolder("AppData", "C:\\WINDOWS");
  CleanDocumentHistory(pc.engine);
  CleanOffice(pc.engine);
  CHECK(pc.pc.hasFolder("C:\\WINDOWS\\Recent"));
  CHECK_FALSE(pc.pc.hasFolder("C:\\WINDOWS\\microsoft"));
}
