// Where the drives of a PC in a folder lie: in its directories named by one upper-case letter, or in folders of the
// host that its facts name.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/folder/PcFacts.h"
#include "platform/host/HostDir.h"
#include "platform/host/WatchedDir.h"

namespace zub {

class DriveFolders {
 public:
  // `root` is the PC's folder, watched, and `folder` its path on the host; the others outlive this.
  DriveFolders(HostDir& root, std::string folder, const PcFacts& facts, HostFailures& failures)
      : root_(root), folder_(std::move(folder)), facts_(facts), failures_(failures) {}

  // NotFound or NotAFolder (for a link too) where it holds no disk.
  HostError open(char letter, std::unique_ptr<HostDir>& drive);
  bool isThere(char letter);
  // In the order of their letters, also those that the facts tell and that hold no disk.
  std::vector<char> letters();
  // Where a drive that lies elsewhere is to be found on the host; empty for the others.
  std::string elsewhere(char letter) const;
  // Those that hold a disk.
  std::vector<char> withDisk();
  // Nothing on it can be removed: the facts say so, or the host has it mounted so.
  bool isReadOnly(char letter);
  // What lies in the PC's folder and looks like a drive that is none, and drives without anything on them, a line
  // each, in UTF-8.
  std::vector<std::string> oddities();

 private:
  HostDir& root_;
  std::string folder_;
  const PcFacts& facts_;
  HostFailures& failures_;
};

// Whether a path of the host begins at a root of its own.
bool isAbsoluteOnHost(const std::string& path);

}  // namespace zub
