// Dates and times as text, in the short forms of an English system.
#pragma once

#include <string>
#include <string_view>

#include "base/Time.h"

namespace zub {

std::string shortDate(const SystemTime& time);  // "11/21/2026"
std::string shortTime(const SystemTime& time);  // "9:05:00 AM"

// A date, a time, or both in either order. Dates: "9/5/2001" with "/", "-" or "." between, month before day
// unless the first number can only be a day; "2001-9-5"; "9/5" in `today`'s year; years of two digits are 1930
// to 2029; with the month's name or its first three letters, as "5 September 2001" or "Sep 5, 2001". Times: "14:20",
// "2:20:30 PM", "2 PM". What is missing is 00:00:00 or 1899-12-30. RuntimeError 13 for everything else.
SystemTime parseDateTime(std::string_view text, const SystemTime& today);

}  // namespace zub
