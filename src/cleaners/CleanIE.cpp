#include "cleaners/CleanIE.h"

#include <string>

#include "cleaners/frmIECookieKeep.h"
#include "engine/Engine.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

void cleanCookies(Engine& engine, frmIECookieKeep& cookieKeep) {
  engine.clean.form.mousePointer = MousePointer::Hourglass;
  cookieKeep.LoadValues();
  engine.clean.form.mousePointer = MousePointer::Default;
  engine.clean.AddItem("\tCleaning Cookies");
  // The shredder gives the window system turns: the rows may be others after each file.
  for (int row = 0; cookieKeep.allRead && row < cookieKeep.lstFiles.ListCount(); ++row) {
    if (cookieKeep.lstDelete.Selected(row)) continue;
    engine.deleter->DeleteFile(cookieKeep.g_strPath + cookieKeep.lstFiles.List(row), 0);
  }
  if (!cookieKeep.allRead) engine.leftBehind.push_back({cookieKeep.g_strPath, "its cookies cannot be read"});
  cookieKeep.LoadCookies();
}

void cleanCache(Engine& engine, const std::string& historyFolder, const std::string& cacheFolder) {
  engine.clean.AddItem("\tDeleting History Entries");
  for (const char* version : {"5.0", "4.0"}) {
    engine.registryHelper.DeleteTrace(
        std::string("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\") +
        version + "\\Cache\\Extensible Cache- Key*");
  }
  engine.deleter->DeleteFolder(historyFolder, "*.*");
  engine.deleter->DeleteFolder(cacheFolder, "*.*");
}

// The names stand right behind the folders, with no backslash between: only a folder value that ends in one
// leads to a file.
void cleanIndex(Engine& engine, const std::string& historyFolder, const std::string& cacheFolder) {
  engine.clean.AddItem("\tDeleting INDEX.DAT");
  engine.deleter->DeleteFile(cacheFolder + "Content.IE5\\index.dat", 1);
  engine.deleter->DeleteFile(historyFolder + "History.IE5\\index.dat", 1);
}

void cleanTypedAddresses(Engine& engine) {
  engine.clean.AddItem("\tRemoving registry entries - Typed URLs");
  engine.registryHelper.DeleteTrace(
      "HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\TypedUrls- Key*");
}

void cleanDownloadedPrograms(Engine& engine) {
  engine.deleter->DeleteFolder(engine.pc.folders->windows() + "\\Downloaded Program Files", "*.*");
}

}  // namespace

void CleanIE(Engine& engine, frmIECookieKeep& cookieKeep) {
  CleanerFrame frame(engine, Task::InternetExplorer);
  frame.announce();
  const std::string cacheFolder = shellFolder(engine, "Cache");
  const std::string historyFolder = shellFolder(engine, "History");
  shellFolder(engine, "Cookies");  // the keep list asks for itself: these three reads are the task's beginning
  frame.heading();
  engine.clean.AddItem("");
  const Options& options = engine.options;
  if (options.chkIECookies.Value() == 1) cleanCookies(engine, cookieKeep);
  if (options.chkIECache.Value() == 1) cleanCache(engine, historyFolder, cacheFolder);
  if (options.chkIEIndex.Value() == 1) cleanIndex(engine, historyFolder, cacheFolder);
  if (options.chkIEAutocomplete.Value() == 1) cleanTypedAddresses(engine);
  if (options.chkIEProgram.Value() == 1) cleanDownloadedPrograms(engine);
  frame.finish();
}

}  // namespace zub
