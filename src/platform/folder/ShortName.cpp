#include "platform/folder/ShortName.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

constexpr std::string_view IllegalInShort = " .+,;=[]";

bool isShortPart(std::string_view part, std::size_t most) {
  return part.size() <= most && part.find_first_of(IllegalInShort) == std::string_view::npos;
}

std::string shortPart(std::string_view part) {
  std::string result;
  for (const char c : folded(part)) {
    if (c == ' ' || c == '.') continue;
    result += IllegalInShort.find(c) == std::string_view::npos ? c : '_';
  }
  return result;
}

std::string numbered(const std::string& base, const std::string& extension, int number) {
  const std::string tail = "~" + std::to_string(number);
  return base.substr(0, std::min(base.size(), 8 - std::min<std::size_t>(tail.size(), 7))) + tail + extension;
}

}  // namespace

bool isShortName(std::string_view name) {
  const auto dot = name.find('.');
  if (dot == std::string_view::npos) return !name.empty() && isShortPart(name, 8);
  return dot > 0 && dot + 1 < name.size() && isShortPart(name.substr(0, dot), 8) &&
         isShortPart(name.substr(dot + 1), 3);
}

std::vector<std::string> shortNames(const std::vector<std::string>& names) {
  std::vector<std::string> result(names.size());
  std::set<std::string, FoldedLess> taken;
  std::vector<std::size_t> order(names.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, [&](std::size_t a, std::size_t b) {
    const int folds = compareFolded(names[a], names[b]);
    return folds != 0 ? folds < 0 : names[a] < names[b];
  });
  for (const std::size_t i : order) {
    if (isShortName(names[i]) && taken.insert(names[i]).second) result[i] = names[i];
  }
  // The next number to try for each base, so that many like names do not cost a search each.
  std::map<std::string, int> next;
  for (const std::size_t i : order) {
    if (!result[i].empty()) continue;
    const auto dot = names[i].rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > 0;
    const std::string base =
        shortPart(std::string_view(names[i]).substr(0, hasExtension ? dot : std::string::npos));
    std::string extension;
    if (hasExtension) extension = "." + shortPart(std::string_view(names[i]).substr(dot + 1)).substr(0, 3);
    int& number = next[base.substr(0, 6) + extension];
    do {
      result[i] = numbered(base, extension, ++number);
    } while (!taken.insert(result[i]).second);
  }
  return result;
}

}  // namespace zub
