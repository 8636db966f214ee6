// The one object through which every file and folder of a wash leaves the disk. It decides the shredding,
// handles files that cannot be removed now, and tells the report and the progress window what it does.
//
// Paths are told text (platform/ToldName.h). Failures stay inside and become report lines and messages. One call at a time: a
// second DeleteFolder inside a first one's turn of the event loop would clear the lists under it.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "engine/FileLister.h"
#include "engine/FoundPaths.h"
#include "state/Controls.h"

namespace zub {

class Engine;

// The pattern that takes the folders along, too.
inline constexpr std::string_view AllFiles = "*.*";

class Delete {
 public:
  explicit Delete(Engine& engine);

  // Removes the files that match the pattern in the folder and below it; with the pattern "*.*" also all
  // folders below it, never the folder itself. True when there is no such folder and nothing was done.
  bool DeleteFolder(std::string_view strPath, std::string_view strPattern);
  // The matching files of one folder. A failure to list it is reported as a line of its own.
  void DeleteFilesInFolder(std::string_view strPath, std::string_view strPattern);
  void MakeDir(std::string_view strPath);
  // True when the removal failed. A missing file fails silently. nSpecial 1: a file that another program
  // holds is also scheduled for removal at the next start of the PC.
  bool DeleteFile(std::string_view strFileName, int nSpecial);
  // Fills the two lists below.
  void DeleteSubDir(std::string_view strPath, std::string_view strPattern);
  void ListFilesFolder(std::string_view Path, std::string_view SearchStr);
  // Overwrites whole blocks of 1024 bytes with zeros, nTimes over, all but the last block; what a pass wrote has
  // reached the disk before the next pass begins. Name, length and tail of the file stay.
  void ZUBShredder(FileGrip& grip, std::string_view szname, int nTimes);

  bool insideFile() const { return insideFile_; }  // in a turn of the event loop: a file is half shredded

  FoundPaths DelDirList;   // folders, parents before their children
  FoundPaths DelFileList;  // matching files
  FileLister DelFile;
  MousePointer mousePointer = MousePointer::Default;

 private:
  using Walk = std::shared_ptr<WalkedFolders>;
  void WalkFolder(const std::string& start, std::string_view strPattern);
  void listFolder(const Walk& walk, std::size_t folder, std::string_view strPattern,
                  std::vector<std::size_t>& children);
  void countUnread(std::string_view folder, const RuntimeError& failure);
  bool FolderPresent(std::string_view strPath);
  void RemoveFolderTree(std::string_view strPath);
  void reportFailure(std::string_view strFileName, int nSpecial, const RuntimeError& failure);
  void removeAtRestart(std::string_view strFileName);

  Engine& engine_;
  bool insideFile_ = false;
};

}  // namespace zub
