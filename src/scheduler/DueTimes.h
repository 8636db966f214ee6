// How many single-run times have come since the last look: what a scheduler of its own needs besides waiting.
#pragma once

#include <cstdint>
#include <vector>

#include "base/Time.h"

namespace zub {

class DueTimes {
 public:
  explicit DueTimes(const SystemTime& now) : last_(secondsOf(now)) {}

  // The number of times after the last look and up to now. A clock that was put back, or on by more than five
  // minutes, starts anew from now: what lay between is lost, and what lies ahead again comes again.
  int look(const std::vector<SystemTime>& times, const SystemTime& now);

 private:
  std::int64_t last_;  // seconds
};

}  // namespace zub
