// The names of one folder of a PC in a folder, found as Windows finds them, so that many questions about names
// that are not there cost one listing.
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "platform/host/HostDir.h"

namespace zub {

class FolderNames {
 public:
  // RuntimeError where the folder cannot be listed whole: that does not tell that a name is not there.
  explicit FolderNames(HostDir& folder);

  // The host's name of an entry that is not there as written: found without regard to case, the first in the
  // host's order of bytes where there are several, else by the 8.3 name that the disk keeps.
  std::optional<std::string> find(HostDir& folder, std::string_view name);
  bool has(const std::string& hostName) const;
  // The 8.3 name of an entry, by its host's name; nothing where the disk keeps none.
  std::optional<std::string> shortName(HostDir& folder, const std::string& hostName);
  // The entry is gone.
  void drop(const std::string& hostName);

  // Others may change the folder: what is known of it holds for a moment, longer for a large one.
  bool fresh() const { return Clock::now() < end_; }

 private:
  using Clock = std::chrono::steady_clock;
  void askShortNames(HostDir& folder);
  void holdFrom(Clock::time_point begin);  // of the work that it took

  std::set<std::pair<std::string, std::string>> names_;  // folded, on the host
  std::map<std::string, std::string> byShort_;           // folded 8.3 name to the host's; of the disk
  std::map<std::string, std::string> shorts_;            // and the way back
  bool shortsAsked_ = false;
  Clock::time_point end_;
};

}  // namespace zub
