// A local date and time, in the eight fields of the system's record.
#pragma once

#include <cstdint>

namespace zub {

struct SystemTime {
  std::uint16_t wYear = 0;
  std::uint16_t wMonth = 0;      // 1 to 12
  std::uint16_t wDayOfWeek = 0;  // 0 is Sunday
  std::uint16_t wDay = 0;
  std::uint16_t wHour = 0;
  std::uint16_t wMinute = 0;
  std::uint16_t wSecond = 0;
  std::uint16_t wMilliseconds = 0;

  bool operator==(const SystemTime&) const = default;
};

// Calendar arithmetic in the Gregorian calendar; days count from 1970-01-01.
std::int64_t daysFromDate(int year, int month, int day);
SystemTime dateFromDays(std::int64_t days);
int daysInMonth(int year, int month);

// The same time of day, some days later; the day of the week follows.
SystemTime plusDays(const SystemTime& time, int days);
// Seconds since 1970-01-01 00:00 of the same local clock, and back.
std::int64_t secondsOf(const SystemTime& time);
SystemTime timeFromSeconds(std::int64_t seconds);

}  // namespace zub
