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
  CleanerFrame frame(engine, Task::DocumentHistory);
  frame.announce();
  frame.heading();
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
  frame.finish();
}

void CleanFindHistory(Engine& engine) {
  CleanerFrame frame(engine, Task::FindHistory);
  frame.announce();
  frame.heading();
  engine.clean.AddItem("\tRemoving registry entries");
  engine.registryHelper.DeleteTrace(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Doc Find Spec MRU- Key*");
  frame.finish();
}

void CleanRunHistory(Engine& engine) {
  CleanerFrame frame(engine, Task::RunHistory);
  frame.announce();
  frame.heading();
  engine.clean.AddItem("\tRemoving registry entries");
  engine.registryHelper.DeleteTrace(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU- Key*");
  frame.finish();
}

void CleanMediaPlayer(Engine& engine) {
  CleanerFrame frame(engine, Task::MediaPlayer);
  frame.announce();
  frame.heading();
  engine.clean.AddItem("\tRemoved registry entries - RecentFileList");
  engine.clean.AddItem("\tRemoved registry entries - RecentURLList");
  engine.registryHelper.DeleteTrace(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\RecentFileList- Key*");
  engine.registryHelper.DeleteTrace(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Player\\RecentURLList- Key*");
  frame.finish();
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
