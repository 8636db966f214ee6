// The drives of a PC in a folder: finds the place of a Windows path on the host, by open folder handles. The
// handles along the path asked for last are kept, so that a walk opens each folder about once; a handle that
// turns out stale is opened anew.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

  // Where a path leads.
  struct Place {
    std::shared_ptr<HostDir> parent;  // null for the root of a drive
    std::string name;                 // on the host; where nothing exists, the name to make
    HostStat stat;
    bool exists = false;
  };

  // RuntimeError 76 where a folder on the way or the drive is missing, 71 where the drive holds no disk.
  Place place(const FolderPath& path);
  // The path of the place found last, with the names that the disk has: a path may hold 8.3 names.
  FolderPath pathOf(const Place& place) const;
  // The folder that a path names; fails in the same way, for the last part too. Good until the next call.
  HostDir& folder(const FolderPath& path) { return *walk(path, path.parts.size()); }

  // The same from where the last path led, by the texts of both: only what differs is taken apart and opened. Nothing
  // where that does not find it, which is no more than that.
  std::optional<Place> placeFromLast(std::string_view path);
  HostDir* folderFromLast(std::string_view folder);
  // `folder`, up to its separator, is what the last path was found in.
  void foundIn(std::string_view folder);

  // The folder found last, and steps from it by names of the host.
  HostDir& here();
  HostError down(const std::string& hostName);
  void up() { open_.pop_back(); }
  char drive() const { return open_.front().name[0]; }

  // The 8.3 name of what a path leads to, without its folder: the name itself where the disk keeps no other.
  // RuntimeError 53 where it is missing.
  std::string shortName(const FolderPath& path);
  // Forgets the handles and names. For those who change the disk in another way.
  void forget() {
    close();
    names_.clear();
  }
  // Forgets the names. For those who have made an entry.
  void forgetNames() { names_.clear(); }

  std::vector<char> drives() { return folders_.letters(); }

 private:
  struct Open {
    std::string name;              // as the path wrote it
    std::string hostName;          // on the host
    std::shared_ptr<HostDir> dir;  // null where it was let go
  };

  const std::shared_ptr<HostDir>& walk(const FolderPath& path, std::size_t parts);
  const std::shared_ptr<HostDir>& openOn(const FolderPath& path, std::size_t parts);
  void enter(const std::string& name);
  bool enterFromLast(std::string_view folder);
  void close() {
    open_.clear();
    text_.clear();
  }
  void letGoBefore(std::size_t at);
  void holdLast();
  template <class Try>
  HostError byAnyName(const std::string& name, std::string& hostName, Try attempt);
  // Of the folder that is open last.
  FolderNames& names();
  std::unique_ptr<HostDir> openDrive(char letter);
  void tellNoShortName(std::string_view name);
  std::size_t sharedParts(const FolderPath& path, std::size_t parts) const;

  DriveFolders& folders_;
  const PcFacts& facts_;
  HostFailures& failures_;
  std::vector<Open> open_;  // the drive, then folder by folder
  std::string text_;        // what they were found by, each with a backslash behind; or empty
  std::map<std::string, FolderNames> names_;  // by FolderPath::key of the folder
};

}  // namespace zub
