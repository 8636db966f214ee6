#include "app/console/NearMiss.h"

#include <algorithm>

#include "base/Text.h"

namespace zub {
namespace {

// Letters to change, to add, to take away, or to swap with their neighbours.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::vector<std::size_t>> steps(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) steps[i][0] = i;
  for (std::size_t j = 0; j <= b.size(); ++j) steps[0][j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = steps[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      steps[i][j] = std::min({changed, steps[i - 1][j] + 1, steps[i][j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) steps[i][j] = std::min(steps[i][j], steps[i - 2][j - 2] + 1);
    }
  }
  return steps[a.size()][b.size()];
}

constexpr std::size_t LongestWord = 200;  // the work grows with the square

}  // namespace

std::string didYouMean(std::string_view word, const std::vector<std::string>& known) {
  if (word.size() > LongestWord) return {};
  const std::string upper = upperAscii(word);
  const std::string* nearest = nullptr;
  std::size_t least = 1 + upper.size() / 5;  // more is another word
  for (const std::string& candidate : known) {
    const std::string other = upperAscii(candidate);
    const bool begun = upper.size() > 2 && other.starts_with(upper);
    const std::size_t away = begun ? 1 : distance(upper, other);
    if (away > least || (away == least && nearest != nullptr)) continue;
    least = away;
    nearest = &candidate;
  }
  return nearest == nullptr ? std::string() : ": did you mean \"" + *nearest + "\"?";
}

}  // namespace zub
