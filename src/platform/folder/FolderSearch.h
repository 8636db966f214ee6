// The enumeration of one folder of a PC in a folder.
#pragma once

#include "platform/Files.h"
#include "platform/Wildcard.h"
#include "platform/folder/PcFacts.h"
#include "platform/host/HostDir.h"

namespace zub {

// The attribute bits of an entry. `key` is its path's, asked for where the facts tell attributes.
std::uint32_t attributesOf(const HostStat& stat, const std::string& key, const PcFacts& facts);

class FolderSearch : public FileSearch {
 public:
  // `folder` is the key of the folder with a backslash behind, asked for where the facts tell attributes.
  FolderSearch(std::unique_ptr<HostList> listing, std::string_view pattern, std::string folder,
               const PcFacts& facts);

  // There is a match at all. Throws where the folder could not be listed so far.
  bool any() const { return waiting_; }
  bool next(FoundFile& found) override;

 private:
  bool advance();

  std::unique_ptr<HostList> listing_;
  Wildcard pattern_;
  std::string folder_;
  const PcFacts& facts_;
  HostEntry entry_;
  bool waiting_ = false;  // entry_ is a match that is still to be told
};

}  // namespace zub
