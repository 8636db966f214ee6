#include "plugins/EntryMeaning.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "plugins/EditorRows.h"
#include "plugins/PluginFormat.h"

namespace zub {
namespace {

using Then = EntryMeaning::Then;

EntryMeaning fault(std::string_view text, Then then = Then::GoesOn) {
  return {std::string(text), false, then};
}

// The first fault that an entry has; null where it has none.
template <class Entry>
struct Fault {
  bool (*has)(const Entry& entry);
  std::string_view text;
};
template <class Entry, std::size_t Count>
const Fault<Entry>* firstFault(const Fault<Entry> (&faults)[Count], const Entry& entry) {
  const auto found =
      std::ranges::find_if(faults, [&](const auto& candidate) { return candidate.has(entry); });
  return found == std::end(faults) ? nullptr : found;
}

struct FileEntry {
  std::string_view path;  // without the marker
  std::string_view behindMarker;
  bool hasMarker = false;
  bool wildcard = false;
  SearchEntry search;  // of an entry with a wildcard
};

bool holdsImpossible(std::string_view path) {
  for (std::size_t place = 0; place < path.size(); ++place) {
    const char c = path[place];
    if (static_cast<unsigned char>(c) < ' ' || contains("<>|\"", std::string_view(&c, 1))) return true;
    if (c == ':' && place != 1) return true;
  }
  return false;
}

constexpr Fault<FileEntry> fileFaults[] = {
    {[](const FileEntry& e) { return e.hasMarker && !e.wildcard; },
     "Never works: the subdirectories marker counts only behind a pattern with ? or *"},
    {[](const FileEntry& e) { return !trim(e.behindMarker).empty(); },
     "Never works as written: what stands behind the subdirectories marker is not read"},
    {[](const FileEntry& e) { return e.wildcard && e.search.pattern.empty(); },
     "Never works: an entry of three characters or less is not split into folder and pattern"},
    {[](const FileEntry& e) { return hasWildcard(e.search.folder); },
     "Never works: only the part behind the last backslash may hold ? or *"},
    {[](const FileEntry& e) { return e.path.ends_with('\\'); }, "Never works: it names no file"},
    {[](const FileEntry& e) { return holdsImpossible(e.path); },
     "Never works: it holds a character that no file name can hold"},
};

// What stands behind the hive.
struct RegistryEntry {
  std::string_view hive;
  std::string_view rest;
  std::string upperRest;
  TraceTarget target;

  std::string_view behindFirst(char sign) const { return rest.substr(rest.find(sign) + 1); }
  std::string_view behindValueMarker() const { return rest.substr(rest.find("Value`")); }
};

bool hasMarker(const RegistryEntry& e) {
  return e.target.keyForm || e.target.valueForm;
}

bool hasEmptyPart(std::string_view path) {
  return path.starts_with('\\') || path.ends_with('\\') || contains(path, "\\\\");
}

constexpr Fault<RegistryEntry> registryFaults[] = {
    {[](const RegistryEntry& e) { return e.target.hive == Hive::None; },
     "Never works as written: no hive matches this name, and the entry works on the hive of the one before"},
    {[](const RegistryEntry& e) {
       return !hasMarker(e) && (contains(e.upperRest, "KEY*") || contains(e.upperRest, "VALUE`"));
     },
     "Never works as written: the marker must read Key* or Value`, in this case; the entry opens the hive "
     "itself"},
    {[](const RegistryEntry& e) { return !hasMarker(e); },
     "Never works as written: it has no marker \"- Key*\" or \"+ Value`= \"; the entry opens the hive "
     "itself"},
    {[](const RegistryEntry& e) { return e.target.keyForm && e.target.valueForm; },
     "Never works as written: it has both markers"},
    {[](const RegistryEntry& e) { return e.target.keyForm && trim(e.behindFirst('-')) != "Key*"; },
     "Never works: the key's path ends at its first hyphen"},
    {[](const RegistryEntry& e) {
       return e.target.valueForm && !trim(e.behindFirst('+')).starts_with("Value`");
     },
     "Never works: the key's path ends at its first plus sign"},
    {[](const RegistryEntry& e) {
       return e.target.valueForm && std::ranges::count(e.behindValueMarker(), '=') != 1;
     },
     "Never works as written: the value's name begins behind the last equals sign"},
    {[](const RegistryEntry& e) { return e.target.path.empty(); },
     "Never works as written: it opens the hive itself"},
    {[](const RegistryEntry& e) { return hasEmptyPart(e.target.path); },
     "Never works: the key's path has an empty part"},
    {[](const RegistryEntry& e) { return trim(e.target.path) != e.target.path; },
     "Never works: a blank at an end of the path counts as part of a key's name"},
};

EntryMeaning meaningOfRefused(const CodePage& codePage, std::string_view entry) {
  if (isNoEntries(codePage, entry)) {
    return fault("Stops the plugin before it is counted: only capitals, NO ENTRIES., end this list",
                 Then::StopsPlugin);
  }
  if (!contains(entry, "\\")) {
    return fault("Stops the plugin: a registry entry needs a backslash behind the hive", Then::StopsPlugin);
  }
  return fault("Stops the plugin: the marker needs its sign, \"- Key*\" or \"+ Value`= \"",
               Then::StopsPlugin);
}

}  // namespace

EntryMeaning meaningOfFileEntry(const CodePage& codePage, std::string_view line) {
  line = trim(line);
  const std::string upper = codePage.upper(line);
  if (upper == NoEntriesUpper) return {"Ends the list", true, Then::EndsList};
  if (line.empty()) return {"Does nothing", true, Then::GoesOn};

  FileEntry entry;
  entry.wildcard = hasWildcard(line);
  std::string_view upperPath = upper;
  entry.hasMarker = cutSubfoldersMarker(upperPath);
  entry.path = line.substr(0, upperPath.size());
  if (entry.hasMarker) entry.behindMarker = line.substr(upperPath.size() + SubfoldersMarker.size());
  if (entry.wildcard) {
    try {
      entry.search = splitSearchEntry(entry.path);
    } catch (const RuntimeError&) {
      return fault("Stops the plugin: a pattern needs a folder and a backslash before it", Then::StopsPlugin);
    }
  }
  if (const auto* found = firstFault(fileFaults, entry)) return fault(found->text);

  const bool relative = entry.path[0] != '\\' && (entry.path.size() < 3 || entry.path.substr(1, 2) != ":\\");
  const std::string_view where = relative ? ", looked for from the current folder" : "";
  if (!entry.wildcard) return {joined({"Removes the file ", entry.path, where})};
  const std::string_view below = entry.hasMarker ? " and of all folders below it" : "";
  return {joined({"Removes the files ", trim(entry.search.pattern), " of the folder ",
                  withBackslash(entry.search.folder), below, where})};
}

EntryMeaning meaningOfRegistryEntry(TraceProbe& probe, const CodePage& codePage, std::string_view line,
                                    bool& keyBefore) {
  line = trim(line);
  if (line == NoEntriesUpper) return {"Ends the list", true, Then::EndsList};
  const std::optional<TraceTarget> target = probe.target(std::string(line));
  if (!target) return meaningOfRefused(codePage, line);
  const bool afterKey = std::exchange(keyBefore, keyBefore || target->keyForm);

  RegistryEntry entry;
  entry.hive = trim(line.substr(0, line.find('\\')));
  entry.rest = line.substr(line.find('\\') + 1);
  entry.upperRest = codePage.upper(entry.rest);
  entry.target = *target;
  if (const auto* found = firstFault(registryFaults, entry)) return fault(found->text);

  const std::string key = joined({entry.hive, "\\", target->path});
  if (target->keyForm) return {joined({"Removes the key ", key, " with its values and subkeys"})};
  const std::string value =
      target->valueName.empty() ? "the unnamed value" : "the value " + target->valueName;
  return {joined({"Removes ", value, " of the key ", key,
                  afterKey ? ", and the whole key with it: a key entry stands above" : ""})};
}

}  // namespace zub
