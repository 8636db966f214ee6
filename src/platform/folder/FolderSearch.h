// The enumeration of one folder of a PC in a folder.
#pragma once

#include "platform/Files.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/HostDir.h"
#include "platform/folder/PcFacts.h"
#include "platform/folder/Wildcard.h"

namespace zub {

// The attribute bits of an entry at `path`.
std::uint32_t attributesOf(const HostStat& stat, const FolderPath& path, const PcFacts& facts);

// Tells only names by which a path leads back to the entry: what a POSIX host may have besides, such as a
// name with a backslash in it, could only be taken for another file.
class FolderSearch : public FileSearch {
 public:
  FolderSearch(std::unique_ptr<HostList> listing, std::string_view pattern, const FolderPath& folder,
               const PcFacts& facts);

  // There is a match at all.
  bool any() const { return ahead_; }
  bool next(FoundFile& found) override;

 private:
  bool advance();

  std::unique_ptr<HostList> listing_;
  Wildcard pattern_;
  FolderPath path_;  // the folder, and its last part the entry
  const PcFacts& facts_;
  HostEntry entry_;
  bool ahead_ = false;  // entry_ is a match that is still to be told
};

}  // namespace zub
