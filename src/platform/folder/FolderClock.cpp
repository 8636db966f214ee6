#include "platform/folder/FolderClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace zub {

SystemTime FolderClock::local() {
  using std::chrono::milliseconds;
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  SystemTime time;
  if (const std::tm* parts = std::localtime(&seconds)) {
    time = dateFromDays(daysFromDate(parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_mday));
    time.wHour = static_cast<std::uint16_t>(parts->tm_hour);
    time.wMinute = static_cast<std::uint16_t>(parts->tm_min);
    time.wSecond = static_cast<std::uint16_t>(std::min(parts->tm_sec, 59));  // a leap second
  }
  const auto sinceEpoch = std::chrono::duration_cast<milliseconds>(now.time_since_epoch());
  time.wMilliseconds = static_cast<std::uint16_t>(sinceEpoch.count() % 1000);
  return time;
}

std::uint64_t FolderClock::ticks() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

}  // namespace zub
