#include "scheduler/DueTimes.h"

#include <algorithm>

namespace zub {
namespace {

constexpr std::int64_t LongestStep = 300;  // seconds

}  // namespace

int DueTimes::look(const std::vector<SystemTime>& times, const SystemTime& now, std::int64_t passing) {
  const std::int64_t present = secondsOf(now);
  const std::int64_t before = last_;
  const std::int64_t passed = passing - lastPassing_;
  last_ = present;
  lastPassing_ = passing;
  if (present < before || passed > LongestStep) return 0;
  const auto due = std::ranges::count_if(
      times, [&](const SystemTime& time) { return secondsOf(time) > before && secondsOf(time) <= present; });
  return static_cast<int>(due);
}

}  // namespace zub
