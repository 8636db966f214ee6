// The removal of a folder with all that it holds.
#pragma once

#include <string>
#include <vector>

#include "platform/folder/FolderDisk.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/PcFacts.h"
#include "platform/host/HostDir.h"

namespace zub {

// Depth first, by the folders that the disk holds open, so that no tree is too deep. What comes in while a folder goes is
// left to another round, as long as a round gets on.
class FolderTree {
 public:
  // `path` is that of the folder to remove, as the facts know it.
  FolderTree(FolderDisk& disk, PcFacts& facts, FolderPath path)
      : disk_(disk), facts_(facts), path_(std::move(path)) {}

  // Removes all that can go of a folder in the one that the disk found last, and comes back to that; why something
  // stays, first of all.
  HostError remove(const std::string& name);

 private:
  struct Level {
    std::string name;
    HostError kept = HostError::None;    // why something stays, first of all
    std::vector<std::string> folders{};  // in it, and how many have been tried
    std::size_t tried = 0;
    bool removedSome = false;
    bool entered = false;
  };

  void next();
  void begin(const std::string& name);
  void enter(Level& level);
  void leave();
  void end(HostError error);
  HostError removeFile(const std::string& name);
  HostError removeDir(const std::string& name);
  bool isLocked() const { return !facts_.locked.empty() && facts_.locked.contains(path_.key()); }

  FolderDisk& disk_;
  PcFacts& facts_;
  FolderPath path_;  // of what is tried
  std::vector<Level> levels_;
  HostError result_ = HostError::None;
};

}  // namespace zub
