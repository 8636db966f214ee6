// A word that chooses cookies of a list: a number ("3"), a range of them ("1-3"), or the site, in which "*" and
// "?" stand for any characters ("*.example.org").
#pragma once

#include <string>
#include <vector>

#include "cleaners/CookieRow.h"
#include "platform/CodePage.h"

namespace zub {

class CookieChoice {
 public:
  // UsageError where the word is a number or a range that no list can have.
  explicit CookieChoice(std::string word);

  // The chosen rows, by their places. Refusal where the word names one that is not there, or none.
  std::vector<std::size_t> of(const std::vector<CookieRow*>& rows, const CodePage& codePage) const;

 private:
  std::string word_;
  int first_ = 0;  // from 1; 0 for a site
  int last_ = 0;
};

}  // namespace zub
