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
  // host's order of bytes where there are several, else by its 8.3 name.
  std::optional<std::string> find(std::string_view name);
  // The 8.3 name of an entry, by its host's name; nothing where it came later.
  std::optional<std::string> shortName(const std::string& hostName);
  // The entry is gone.
  void drop(const std::string& hostName);

  // Others may change the folder: what is known of it holds for a moment, longer for a large one.
  bool fresh() const { return Clock::now() < end_; }

 private:
  using Clock = std::chrono::steady_clock;
  void findShortNames();
  void holdFrom(Clock::time_point begin);  // of the work that it took

  std::set<std::pair<std::string, std::string>> names_;  // folded, on the host
  std::map<std::string, std::string> byShort_;           // folded 8.3 name to the host's; made when asked for
  std::map<std::string, std::string> shorts_;            // and the way back
  Clock::time_point end_;
};

}  // namespace zub
