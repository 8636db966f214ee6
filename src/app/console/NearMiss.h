// What may have been meant by a word that nobody knows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zub {

// ": did you mean "wash"?", or the empty text where no known word is near. Case does not count.
std::string didYouMean(std::string_view word, const std::vector<std::string>& known);

}  // namespace zub
