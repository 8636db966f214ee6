#include "cleaners/UnclaimedFiles.h"

#include <bit>
#include <functional>

namespace zub {
namespace {

constexpr std::uint32_t None = 0xFFFFFFFF;

}  // namespace

UnclaimedFiles::UnclaimedFiles(const CodePage& codePage, const std::vector<std::string>& names)
    : codePage_(codePage),
      names_(names),
      chains_(std::bit_ceil(names.size() + 1), None),
      next_(names.size()),
      claimed_(names.size()) {
  upper_.reserve(names.size());
  for (const std::string& name : names) upper_.push_back(codePage.upper(name));
  for (std::size_t file = names.size(); file-- > 0;) {
    std::uint32_t& first = chainOf(upper_[file]);
    next_[file] = first;
    first = static_cast<std::uint32_t>(file);
  }
}

std::uint32_t& UnclaimedFiles::chainOf(const std::string& upper) {
  return chains_[std::hash<std::string>{}(upper) & (chains_.size() - 1)];
}

bool UnclaimedFiles::claim(std::string_view name) {
  const std::string upper = codePage_.upper(name);
  for (std::uint32_t* file = &chainOf(upper); *file != None; file = &next_[*file]) {
    if (upper_[*file] != upper) continue;
    claimed_[*file] = true;
    *file = next_[*file];
    return true;
  }
  return false;
}

}  // namespace zub
