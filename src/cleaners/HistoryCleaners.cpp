#include "cleaners/HistoryCleaners.h"

#include <string>

#include "engine/Engine.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

constexpr const char* officePrograms[] = {"Word", "Excel", "PowerPoint", "Access"};
constexpr const char* officeVersions[] = {"10.0", "9.0", "8.0"};

}  // namespace

void CleanDocumentHistory(Engine& engine) {
  clean(engine, Task::DocumentHistory, [&] {
    const std::string recent = shellFolder(engine, "Recent");
    engine.clean.AddItem("\tRemoving registry entries - Recently opened documents");
    engine.registryHelper.DeleteTrace(
        "HKey_Current_User\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs- Key*");
    engine.clean.AddItem("\tRemoving registry entries - Stream MRU");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StreamMRU- Key*");
    engine.clean.AddItem("\tRemoving registry entries - Streams");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Streams- Key*");
    engine.deleter->DeleteFolder(recent, "*.*");
    engine.deleter->MakeDir(recent);
  });
}

void CleanFindHistory(Engine& engine) {
  clean(engine, Task::FindHistory, [&] {
    engine.clean.AddItem("\tRemoving registry entries");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Doc Find Spec MRU- Key*");
  });
}

void CleanRunHistory(Engine& engine) {
  clean(engine, Task::RunHistory, [&] {
    engine.clean.AddItem("\tRemoving registry entries");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU- Key*");
  });
}

void CleanMediaPlayer(Engine& engine) {
  clean(engine, Task::MediaPlayer, [&] {
    engine.clean.AddItem("\tRemoved registry entries - RecentFileList");
    engine.clean.AddItem("\tRemoved registry entries - RecentURLList");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\RecentFileList- Key*");
    engine.registryHelper.DeleteTrace(
        "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\RecentURLList- Key*");
  });
}

void CleanOffice(Engine& engine) {
  CleanerFrame frame(engine, Task::Office);
  frame.announce();
  const std::string folder = shellFolder(engine, "AppData") + "\\microsoft\\office\\recent";
  frame.heading();
  engine.clean.AddItem("\tRemoved Files - Recent File History");
  const bool missing = engine.deleter->DeleteFolder(folder, "*.*");
  if (!missing) engine.deleter->MakeDir(folder);
  engine.clean.AddItem("\tRemoved registry entries - Recent File List");
  // The Settings value is where these programs keep their recent lists.
  for (const std::string program : officePrograms) {
    for (const std::string version : officeVersions) {
      engine.registryHelper.DeleteTrace("HKEY_CURRENT_USER\\Software\\Microsoft\\Office\\" + version + "\\" +
                                        program + "\\Data+ Value`= Settings");
    }
  }
  frame.finish();
}

}  // namespace zub
