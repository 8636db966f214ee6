// The drives of a PC in a folder: finds the place of a Windows path on the host, by open folder handles. The
// handles along the path asked for last are kept, so that a walk opens each folder about once; a handle that
// turns out stale is opened anew.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/folder/DriveFolders.h"
#include "platform/folder/FolderNames.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/PcFacts.h"
#include "platform/host/HostDir.h"
#include "platform/host/WatchedDir.h"

namespace zub {

class FolderDisk {
 public:
  // All outlive the disk.
  FolderDisk(DriveFolders& folders, const PcFacts& facts, HostFailures& failures)
      : folders_(folders), facts_(facts), failures_(failures) {}

  // Where a path leads. The pointer is good until the next call on the disk.
  struct Place {
    HostDir* parent = nullptr;  // null for the root of a drive
    std::string name;           // on the host; where nothing exists, the name to make
    HostStat stat;
    bool exists = false;
  };

  // RuntimeError 76 where a folder on the way or the drive is missing, 71 where the drive holds no disk.
  Place place(const FolderPath& path);
  // The path of the place found last, with the names that the disk has: a path may hold 8.3 names.
  FolderPath pathOf(const Place& place) const;
  // The folder that a path names; fails in the same way, for the last part too. Good until the next call.
  HostDir& folder(const FolderPath& path) { return walk(path, path.parts.size()); }
  // The 8.3 name of what a path leads to, without its folder: the name itself where the disk keeps no other.
  // RuntimeError 53 where it is missing.
  std::string shortName(const FolderPath& path);
  // Forgets the handles and names. For those who change the disk in another way.
  void forget() {
    open_.clear();
    names_.clear();
  }
  // Forgets the names. For those who have made an entry.
  void forgetNames() { names_.clear(); }

  std::vector<char> drives() { return folders_.letters(); }

 private:
  struct Open {
    std::string name;              // as the path wrote it
    std::string hostName;          // on the host
    std::unique_ptr<HostDir> dir;  // null where it was let go
  };

  HostDir& walk(const FolderPath& path, std::size_t parts);
  HostDir& openOn(const FolderPath& path, std::size_t parts);
  void letGoBefore(std::size_t at);
  void holdLast();
  template <class Try>
  HostError byAnyName(HostDir& folder, const FolderPath& path, std::size_t at, std::string& hostName,
                      Try attempt);
  // Those of the folder that the first parts of the path lead to.
  FolderNames& namesOf(HostDir& folder, const FolderPath& path, std::size_t parts);
  std::unique_ptr<HostDir> openDrive(char letter);
  void tellNoShortName(std::string_view name);
  std::size_t sharedParts(const FolderPath& path, std::size_t parts) const;

  DriveFolders& folders_;
  const PcFacts& facts_;
  HostFailures& failures_;
  std::vector<Open> open_;                    // the drive, then folder by folder
  std::map<std::string, FolderNames> names_;  // by FolderPath::key of the folder
};

}  // namespace zub
