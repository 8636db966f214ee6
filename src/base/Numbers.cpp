#include "base/Numbers.h"

#include <limits>

#include "base/RuntimeError.h"

namespace zub {

std::int64_t divideRoundHalfEven(std::int64_t length, std::int64_t unit) {
  const std::int64_t whole = length / unit;
  const std::int64_t twiceRest = (length % unit) * 2;
  const bool up = twiceRest > unit || (twiceRest == unit && whole % 2 != 0);
  return up ? whole + 1 : whole;
}

std::int32_t checkedAdd(std::int32_t a, std::int64_t b) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(std::int64_t{a}, b, &sum) || sum > std::numeric_limits<std::int32_t>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(sum);
}

std::string groupedThousands(std::int32_t number) {
  if (number == 0) return {};
  std::string text = std::to_string(number);
  for (std::size_t place = text.size(); place > 3;) {
    place -= 3;
    text.insert(place, ",");
  }
  return text;
}

std::string twoDigits(int number) {
  std::string text = std::to_string(number);
  return text.size() < 2 ? "0" + text : text;
}

}  // namespace zub
