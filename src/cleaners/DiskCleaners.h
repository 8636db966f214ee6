// Disk space rather than history: the temporary folder, the recycle bins, and the files that the disk checker leaves.
#pragma once

#include <string>
#include <vector>

#include "engine/FileLister.h"

namespace zub {

class Engine;

// Empties the bins of the fixed drives.
class Recycle {
 public:
  explicit Recycle(Engine& engine);
  void CleanBin();

 private:
  Engine& engine_;
  std::vector<std::string> drvFind_;  // the PC's drives when the worker was made
};

// Finds what the disk checker left at the roots of the fixed drives.
class ScanDisk {
 public:
  explicit ScanDisk(Engine& engine);
  void GetFiles();
  std::vector<std::string> lstDelFiles;  // full names

 private:
  Engine& engine_;
  std::vector<std::string> drvFind_;
  FileLister FileBox_;  // of the folder that was the current one when the worker was made, and never another
};

void CleanTempFolder(Engine& engine);
void CleanRecycleBin(Engine& engine, Recycle& recycle);
void CleanScanDisk(Engine& engine, ScanDisk& scanDisk);

}  // namespace zub
