#include "base/Time.h"

#include <chrono>

namespace zub {
namespace {

using std::chrono::sys_days;

SystemTime dateOf(sys_days day) {
  const std::chrono::year_month_day date(day);
  SystemTime time;
  time.wYear = static_cast<std::uint16_t>(static_cast<int>(date.year()));
  time.wMonth = static_cast<std::uint16_t>(static_cast<unsigned>(date.month()));
  time.wDayOfWeek = static_cast<std::uint16_t>(std::chrono::weekday(day).c_encoding());
  time.wDay = static_cast<std::uint16_t>(static_cast<unsigned>(date.day()));
  return time;
}

}  // namespace

std::int64_t daysFromDate(int year, int month, int day) {
  using namespace std::chrono;
  const sys_days first = std::chrono::year(year) / month / 1;
  return (first + days(day - 1)).time_since_epoch().count();
}

SystemTime dateFromDays(std::int64_t days) {
  return dateOf(sys_days(std::chrono::days(days)));
}

int daysInMonth(int year, int month) {
  const auto last = std::chrono::year(year) / month / std::chrono::last;
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

SystemTime plusDays(const SystemTime& time, int days) {
  return timeFromSeconds(secondsOf(time) + std::int64_t{days} * 86400);
}

std::int64_t secondsOf(const SystemTime& time) {
  const std::int64_t hours = daysFromDate(time.wYear, time.wMonth, time.wDay) * 24 + time.wHour;
  return (hours * 60 + time.wMinute) * 60 + time.wSecond;
}

SystemTime timeFromSeconds(std::int64_t seconds) {
  const std::chrono::sys_seconds moment{std::chrono::seconds(seconds)};
  const auto day = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::hh_mm_ss clock(moment - day);
  SystemTime time = dateOf(day);
  time.wHour = static_cast<std::uint16_t>(clock.hours().count());
  time.wMinute = static_cast<std::uint16_t>(clock.minutes().count());
  time.wSecond = static_cast<std::uint16_t>(clock.seconds().count());
  return time;
}

}  // namespace zub
