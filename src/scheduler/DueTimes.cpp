#include "scheduler/DueTimes.h"

namespace zub {
namespace {

constexpr std::int64_t LongestStep = 300;  // seconds

}  // namespace

std::vector<std::size_t> DueTimes::look(const std::vector<SystemTime>& times, const SystemTime& now) {
  const std::int64_t present = secondsOf(now);
  const std::int64_t before = last_;
  last_ = present;
  std::vector<std::size_t> due;
  if (present < before || present - before > LongestStep) return due;
  for (std::size_t index = 0; index < times.size(); ++index) {
    const std::int64_t time = secondsOf(times[index]);
    if (time > before && time <= present) due.push_back(index);
  }
  return due;
}

}  // namespace zub
