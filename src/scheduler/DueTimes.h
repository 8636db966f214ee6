// How many single-run times have come since the last look: what a scheduler of its own needs besides waiting.
#pragma once

#include <cstdint>
#include <vector>

#include "base/Time.h"

namespace zub {

class DueTimes {
 public:
  // `passing` is a count of seconds that summer time does not touch.
  DueTimes(const SystemTime& now, std::int64_t passing) : last_(secondsOf(now)), lastPassing_(passing) {}

  // The number of times after the last look and up to now, those too that the local clock leaves out when
  // summer time begins. A clock that was put back, or more than five minutes without a look, start anew from
  // now: what lay between is lost, and what lies ahead again comes again.
  int look(const std::vector<SystemTime>& times, const SystemTime& now, std::int64_t passing);

 private:
  std::int64_t last_;  // seconds of the local clock
  std::int64_t lastPassing_;
};

}  // namespace zub
