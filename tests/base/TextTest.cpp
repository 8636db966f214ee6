#include <doctest/doctest.h>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Time.h"

using namespace zub;

TEST_CASE("a folder and a path are joined with one backslash") {
  CHECK(JoinPath("C:\\A", "b") == "C:\\A\\b");
  CHECK(JoinPath("C:\\A\\", "b") == "C:\\A\\b");
  CHECK(JoinPath("C:\\A\\  ", "b") == "C:\\A\\  b");
  CHECK(JoinPath("", "Activity.log") == "\\Activity.log");
}

TEST_CASE("trimming takes blanks only") {
  CHECK(trim("  a\t ") == "a\t");
  CHECK(trim("   ") == "");
  CHECK(StripAtNull(std::string_view("ab\0cd", 5)) == "ab");
  CHECK(leadingNumber(" 7 times") == 7);
  CHECK(leadingNumber("") == 0);
  CHECK(leadingNumber("99999999999") == 2147483647);
}

TEST_CASE("paths are cut at their last backslash") {
  CHECK(lastPathPart("C:\\a\\b.txt") == "b.txt");
  CHECK(lastPathPart("b.txt") == "b.txt");
  CHECK(withoutLastPathPart("C:\\a\\b.txt") == "C:\\a");
  CHECK(withoutLastPathPart("b.txt") == "");
}

TEST_CASE("halves go to the even neighbour") {
  const std::int64_t cases[][2] = {{0, 0},    {511, 0},  {512, 0},  {513, 1},
                                   {1535, 1}, {1536, 2}, {2560, 2}, {2561, 3}};
  for (const auto& [length, blocks] : cases) CHECK(divideRoundHalfEven(length, 1024) == blocks);
}

TEST_CASE("numbers are grouped by thousands, and nothing stands for 0") {
  CHECK(groupedThousands(0) == "");
  CHECK(groupedThousands(999) == "999");
  CHECK(groupedThousands(1000) == "1,000");
  CHECK(groupedThousands(1234567) == "1,234,567");
  CHECK(groupedThousands(-1234) == "-1,234");
}

TEST_CASE("a sum beyond 32 bits overflows") {
  CHECK(checkedAdd(2147483646, 1) == 2147483647);
  CHECK_THROWS_AS(checkedAdd(2147483647, 1), RuntimeError);
  CHECK_THROWS_AS(checkedAdd(1, 9223372036854775807), RuntimeError);
}

TEST_CASE("days go over the ends of months and years") {
  SystemTime time{2023, 12, 0, 31, 23, 59, 58, 0};
  time = plusDays(time, 1);
  CHECK(time.wYear == 2024);
  CHECK(time.wMonth == 1);
  CHECK(time.wDay == 1);
  CHECK(time.wDayOfWeek == 1);
  CHECK(time.wHour == 23);
  CHECK(daysInMonth(2024, 2) == 29);
  CHECK(daysInMonth(1900, 2) == 28);
  for (std::int64_t day = -200000; day < 200000; day += 97) {
    const SystemTime date = dateFromDays(day);
    CHECK(daysFromDate(date.wYear, date.wMonth, date.wDay) == day);
  }
}
