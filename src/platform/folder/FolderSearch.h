// The enumeration of one folder of a PC in a folder.
#pragma once

#include "platform/Files.h"
#include "platform/Wildcard.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/PcFacts.h"
#include "platform/host/HostDir.h"

namespace zub {

// The attribute bits of an entry at `path`.
std::uint32_t attributesOf(const HostStat& stat, const FolderPath& path, const PcFacts& facts);

class FolderSearch : public FileSearch {
 public:
  FolderSearch(std::unique_ptr<HostList> listing, std::string_view pattern, const FolderPath& folder,
               const PcFacts& facts);

  // There is a match at all. Throws where the folder could not be listed so far.
  bool any() const { return waiting_; }
  bool next(FoundFile& found) override;

 private:
  bool advance();

  std::unique_ptr<HostList> listing_;
  Wildcard pattern_;
  FolderPath path_;  // the folder, and its last part the entry
  const PcFacts& facts_;
  HostEntry entry_;
  bool waiting_ = false;  // entry_ is a match that is still to be told
};

}  // namespace zub
