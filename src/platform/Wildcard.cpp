#include "platform/Wildcard.h"

namespace zub {

Wildcard::Wildcard(std::u16string_view pattern) {
  pattern = pattern.substr(0, pattern.find_last_not_of(' ') + 1);
  everything_ = pattern == u"*" || pattern == u"*.*";
  const bool dotAtEnd = pattern.ends_with('.');
  pattern = pattern.substr(0, pattern.find_last_not_of(u". ") + 1);
  withoutExtension_ = dotAtEnd && pattern.find('.') == std::u16string_view::npos;
  pattern_ = pattern;
}

bool Wildcard::matches(std::u16string_view name) const {
  if (everything_) return true;
  if (pattern_.empty() || (withoutExtension_ && name.find('.') != std::u16string_view::npos)) return false;

  constexpr std::size_t none = std::u16string::npos;
  std::size_t p = 0;
  std::size_t n = 0;
  std::size_t afterStar = none;  // where the pattern goes on behind the last star
  std::size_t starEnd = 0;       // how much of the name that star has taken
  const std::size_t lastDot = name.rfind('.');
  while (true) {
    const bool nameEnds = n == name.size();
    if (p == pattern_.size() && nameEnds) return true;
    const char16_t want = p < pattern_.size() ? pattern_[p] : u'\0';
    if (want == '*') {
      afterStar = ++p;
      starEnd = n;
      continue;
    }
    if (want == '?' && (nameEnds || name[n] == '.')) {
      ++p;
      continue;
    }
    const bool dotBeforeWildcard =
        want == '.' && p + 1 < pattern_.size() && (pattern_[p + 1] == '*' || pattern_[p + 1] == '?');
    if (nameEnds && dotBeforeWildcard) {
      ++p;
      continue;
    }
    if (p < pattern_.size() && !nameEnds && (want == '?' || want == name[n])) {
      ++p;
      ++n;
      continue;
    }
    if (afterStar == none || starEnd == name.size()) return false;
    if (starEnd == lastDot && afterStar < pattern_.size() && pattern_[afterStar] == '.') return false;
    p = afterStar;
    n = ++starEnd;
  }
}

}  // namespace zub
