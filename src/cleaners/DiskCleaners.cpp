#include "cleaners/DiskCleaners.h"

#include "base/RuntimeError.h"
#include "engine/Engine.h"

namespace zub {
namespace {

constexpr std::uint32_t TempRoom = 512;
// No confirmation, no progress window, no sound.
constexpr std::uint32_t SilentEmpty = 7;
// What Windows answers where the bins hold nothing.
constexpr auto NothingToEmpty = static_cast<std::int32_t>(0x8000FFFF);

bool isFixed(Drives& drives, const std::string& drive) {
  return drives.exists(drive) && drives.type(drive) == DriveType::Fixed;
}

}  // namespace

void CleanTempFolder(Engine& engine) {
  CleanerFrame frame(engine, Task::TempFolder);
  frame.announce();
  std::string temp = engine.pc.folders->temp(TempRoom);
  if (temp.empty()) return;
  temp.pop_back();
  // The guard looks at the path without its last backslash: "C:" passes, three characters and less than two do not.
  if (temp.size() == 3 || temp.size() < 2) {
    engine.userFunctions.ShowMessage("Your temp folder is " + temp + "which is the root folder", 0,
                                     "Cannot delete folder", true);
    return;
  }
  frame.heading();
  engine.deleter->DeleteFolder(temp, "*.*");
  engine.deleter->MakeDir(temp);
  frame.finish();
}

Recycle::Recycle(Engine& engine) : engine_(engine), drvFind_(engine.pc.drives->list()) {}

void Recycle::CleanBin() {
  for (const std::string& entry : drvFind_) {
    const std::string drive = entry.substr(0, 2);
    const std::string bin = drive + "\\recycled";
    if (!isFixed(*engine_.pc.drives, drive) || !engine_.pc.files->folderExists(bin)) continue;
    engine_.clean.AddItem("\tCleaned Recycle Bin on drive " + engine_.pc.codePage->upper(drive.substr(0, 1)));
    engine_.deleter->DeleteFilesInFolder(bin, "*.*");
  }
  const std::int32_t failure = engine_.pc.shell->emptyRecycleBin(SilentEmpty);
  if (failure != 0 && failure != NothingToEmpty) {
    engine_.leftBehind.push_back({"the recycle bins", "the system cannot empty them"});
  }
  // The icon is refreshed after a failure only.
  if (failure != 0) engine_.pc.shell->updateRecycleBinIcon();
}

void CleanRecycleBin(Engine& engine, Recycle& recycle) {
  clean(engine, Task::RecycleBin, [&] { recycle.CleanBin(); });
}

ScanDisk::ScanDisk(Engine& engine)
    : engine_(engine),
      drvFind_(engine.pc.drives->list()),
      FileBox_(engine.pc, "*.chk", FileLister::Hidden::Skip) {
  try {
    FileBox_.path(engine.pc.folders->current());
  } catch (const RuntimeError&) {
    // A current folder that is gone lists nothing.
  }
}

// The names of one folder are tried at every root; DeleteFile passes over those that are not there.
void ScanDisk::GetFiles() {
  lstDelFiles.clear();
  for (const std::string& entry : drvFind_) {
    const std::string drive = entry.substr(0, 2);
    if (!isFixed(*engine_.pc.drives, drive)) continue;
    const std::string root = drive + "\\";
    if (engine_.pc.files->fileExists(root + "scandisk.log")) lstDelFiles.push_back(root + "scandisk.log");
    for (const std::string& name : FileBox_.names()) lstDelFiles.push_back(root + name);
  }
}

void CleanScanDisk(Engine& engine, ScanDisk& scanDisk) {
  CleanerFrame frame(engine, Task::ScanDisk);
  frame.announce();
  scanDisk.GetFiles();
  frame.heading();
  for (std::size_t file = 0; file < scanDisk.lstDelFiles.size(); ++file) {
    engine.deleter->DeleteFile(std::string(scanDisk.lstDelFiles[file]), 0);
  }
  frame.finish();
}

}  // namespace zub
