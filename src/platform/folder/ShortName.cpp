#include "platform/folder/ShortName.h"

#include <algorithm>
#include <cctype>

namespace zub {
namespace {

bool isShortPart(std::string_view part, std::size_t most) {
  return part.size() <= most && part.find_first_of(" .+,;=[]") == std::string_view::npos;
}

}  // namespace

bool isShortName(std::string_view name) {
  const auto dot = name.find('.');
  if (dot == std::string_view::npos) return !name.empty() && isShortPart(name, 8);
  return dot > 0 && dot + 1 < name.size() && isShortPart(name.substr(0, dot), 8) &&
         isShortPart(name.substr(dot + 1), 3);
}

bool isMadeShortName(std::string_view name) {
  const auto base = name.substr(0, name.find('.'));
  const auto sign = base.rfind('~');
  if (sign == std::string_view::npos || sign == 0 || !isShortName(name)) return false;
  return sign + 1 < base.size() &&
         std::ranges::all_of(base.substr(sign + 1), [](unsigned char c) { return std::isalnum(c) != 0; });
}

}  // namespace zub
