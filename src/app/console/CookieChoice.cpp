#include "app/console/CookieChoice.h"

#include "app/console/Commands.h"
#include "base/Text.h"

namespace zub {
namespace {

bool matches(std::string_view text, std::string_view pattern) {
  if (pattern.empty()) return text.empty();
  if (pattern[0] == '*') {
    for (std::size_t skipped = 0; skipped <= text.size(); ++skipped) {
      if (matches(text.substr(skipped), pattern.substr(1))) return true;
    }
    return false;
  }
  if (text.empty() || (pattern[0] != '?' && pattern[0] != text[0])) return false;
  return matches(text.substr(1), pattern.substr(1));
}

// "http://shop.example/basket " is of the site "shop.example", ".shop.example<tab>" of ".shop.example".
std::string_view siteOf(std::string_view shown) {
  constexpr std::string_view scheme = "http://";
  if (shown.starts_with(scheme)) {
    shown.remove_prefix(scheme.size());
    shown = shown.substr(0, shown.find('/'));
  }
  return trim(shown.substr(0, shown.find('\t')));
}

}  // namespace

CookieChoice::CookieChoice(std::string word) : word_(std::move(word)) {
  if (word_.find_first_not_of("0123456789-") != std::string::npos) return;
  const auto hyphen = word_.find('-');
  first_ = rowNumber(word_.substr(0, hyphen));
  last_ = hyphen == std::string::npos ? first_ : rowNumber(word_.substr(hyphen + 1));
  if (first_ < 1 || last_ < first_) throw UsageError("\"" + word_ + "\" is no number of the list");
}

std::vector<std::size_t> CookieChoice::of(const std::vector<CookieRow*>& rows,
                                          const CodePage& codePage) const {
  std::vector<std::size_t> places;
  if (first_ > 0) {
    if (last_ > static_cast<int>(rows.size())) {
      throw Refusal("there is no cookie " + word_.substr(word_.find('-') + 1));
    }
    for (int number = first_; number <= last_; ++number)
      places.push_back(static_cast<std::size_t>(number) - 1);
    return places;
  }
  const std::string pattern = codePage.upper(word_);
  for (std::size_t place = 0; place < rows.size(); ++place) {
    if (matches(codePage.upper(siteOf(rows[place]->shown)), pattern)) places.push_back(place);
  }
  if (places.empty()) throw Refusal("there is no cookie of \"" + word_ + "\"");
  return places;
}

}  // namespace zub
