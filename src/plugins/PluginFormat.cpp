#include "plugins/PluginFormat.h"

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {

namespace {

// The blank before the marker stays.
Action fileAction(std::string entry) {
  Action action;
  action.kind = hasWildcard(entry) ? Action::Kind::Files : Action::Kind::File;
  const auto marker = entry.find(SubfoldersMarkerUpper);
  if (action.kind == Action::Kind::Files && marker != std::string::npos) {
    action.kind = Action::Kind::FilesBelow;
    entry.resize(marker);
  }
  action.path = std::move(entry);
  return action;
}

}  // namespace

std::optional<Action> actionOf(const CodePage& codePage, PluginFile file, std::string_view line) {
  const bool files = file == PluginFile::Files;
  std::string entry(trim(files ? codePage.toldPath(codePage.upper(line)) : std::string(line)));
  if (entry == NoEntriesUpper) return std::nullopt;
  if (files) return fileAction(std::move(entry));
  Action action;
  action.trace = Trace(entry);
  return action;
}

SearchEntry splitSearchEntry(std::string_view entry) {
  if (entry.size() <= LongestUnsplit) return {entry, {}};
  if (!contains(entry, "\\")) throw RuntimeError(ErrorNumber::InvalidCall);
  return {withoutLastPathPart(entry), lastPathPart(entry)};
}

}  // namespace zub
