#include "plugins/PluginFormat.h"

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {

bool cutSubfoldersMarker(std::string_view& upperEntry) {
  const auto place = upperEntry.find(SubfoldersMarkerUpper);
  if (place == std::string_view::npos) return false;
  upperEntry = upperEntry.substr(0, place);
  return true;
}

SearchEntry splitSearchEntry(std::string_view entry) {
  constexpr std::size_t unsplit = 3;
  if (entry.size() <= unsplit) return {entry, {}};
  if (!contains(entry, "\\")) throw RuntimeError(ErrorNumber::InvalidCall);
  return {withoutLastPathPart(entry), lastPathPart(entry)};
}

}  // namespace zub
