// Arithmetic as the classic runtime does it.
#pragma once

#include <cstdint>
#include <string>

namespace zub {

// length / unit rounded to the nearest whole number, halves to the even neighbour. unit > 0.
std::int64_t divideRoundHalfEven(std::int64_t length, std::int64_t unit);

// a + b, neither of them below 0; RuntimeError 6 where the sum leaves 32 bits.
std::int32_t checkedAdd(std::int32_t a, std::int64_t b);

// "1,234,567"; the empty text for 0. Not below 0.
std::string groupedThousands(std::int32_t number);

// Two digits at least: 7 is "07".
std::string twoDigits(int number);

}  // namespace zub
