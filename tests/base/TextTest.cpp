#include <doctest/doctest.h>

#include "base/Text.h"
#include "base/Time.h"

using namespace zub;

TEST_CASE("a folder and a path are joined with one backslash") {
  CHECK(JoinPath("C:\\A", "b") == "C:\\A\\b");
  CHECK(JoinPath("C:\\A\\", "b") == "C:\\A\\b");
  CHECK(JoinPath("C:\\A\\  ", "b") == "C:\\A\\  b");
  CHECK(JoinPath("", "Activity.log") == "\\Activity.log");
}

TEST_CASE("texts are cut at blanks, at their NUL, at their last backslash and behind their number") {
  CHECK(trim("  a\t ") == "a\t");
  CHECK(trim("   ") == "");
  CHECK(StripAtNull(std::string_view("ab\0cd", 5)) == "ab");
  CHECK(withoutLastPathPart("C:\\a\\b.txt") == "C:\\a");
  CHECK(withoutLastPathPart("b.txt") == "");
  CHECK(leadingNumber("99999999999") == 2147483647);
  std::string_view lines = "a\r\nb";
  CHECK(takeLine(lines) == "a");
  CHECK(takeLine(lines) == "b");
  CHECK(lines == "");
}

TEST_CASE("days go over the ends of months and years") {
  CHECK(plusDays({2023, 12, 0, 31, 23, 59, 58, 0}, 1) == SystemTime{2024, 1, 1, 1, 23, 59, 58, 0});
  CHECK(dateFromDays(3) == SystemTime{1970, 1, 0, 4, 0, 0, 0, 0});  // a Sunday
  CHECK(daysInMonth(2024, 2) == 29);
  CHECK(daysInMonth(1900, 2) == 28);
  for (std::int64_t day = -200000; day < 200000; day += 97) {
    const SystemTime date = dateFromDays(day);
    CHECK(daysFromDate(date.wYear, date.wMonth, date.wDay) == day);
  }
}
