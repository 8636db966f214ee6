#include "base/Time.h"

namespace zub {

// Days and dates by the method of counting years from March, in eras of 400 years.
std::int64_t daysFromDate(int year, int month, int day) {
  const std::int64_t y = month <= 2 ? year - 1 : year;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const std::int64_t yearOfEra = y - era * 400;
  const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + dayOfEra - 719468;
}

SystemTime dateFromDays(std::int64_t days) {
  const std::int64_t shifted = days + 719468;
  const std::int64_t era = (shifted >= 0 ? shifted : shifted - 146096) / 146097;
  const std::int64_t dayOfEra = shifted - era * 146097;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const std::int64_t month = monthFromMarch + (monthFromMarch < 10 ? 3 : -9);
  SystemTime time;
  time.wYear = static_cast<std::uint16_t>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
  time.wMonth = static_cast<std::uint16_t>(month);
  time.wDay = static_cast<std::uint16_t>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
  time.wDayOfWeek = static_cast<std::uint16_t>(((days + 4) % 7 + 7) % 7);
  return time;
}

int daysInMonth(int year, int month) {
  const int nextYear = month == 12 ? year + 1 : year;
  const int nextMonth = month == 12 ? 1 : month + 1;
  return static_cast<int>(daysFromDate(nextYear, nextMonth, 1) - daysFromDate(year, month, 1));
}

SystemTime plusDays(const SystemTime& time, int days) {
  return timeFromSeconds(secondsOf(time) + std::int64_t{days} * 86400);
}

std::int64_t secondsOf(const SystemTime& time) {
  return daysFromDate(time.wYear, time.wMonth, time.wDay) * 86400 + time.wHour * 3600 + time.wMinute * 60 +
         time.wSecond;
}

SystemTime timeFromSeconds(std::int64_t seconds) {
  std::int64_t days = seconds / 86400;
  std::int64_t rest = seconds % 86400;
  if (rest < 0) {
    rest += 86400;
    --days;
  }
  SystemTime time = dateFromDays(days);
  time.wHour = static_cast<std::uint16_t>(rest / 3600);
  time.wMinute = static_cast<std::uint16_t>(rest / 60 % 60);
  time.wSecond = static_cast<std::uint16_t>(rest % 60);
  return time;
}

}  // namespace zub
