#include "plugins/ActionRemarks.h"

#include <algorithm>

#include "base/Text.h"

namespace zub {
namespace {

// The text of the first row that holds.
template <class Subject>
struct Remark {
  bool (*holds)(const Subject& subject);
  std::string_view text;
};
template <class Subject, std::size_t Count>
std::string_view firstOf(const Remark<Subject> (&remarks)[Count], const Subject& subject) {
  const auto found = std::ranges::find_if(remarks, [&](const auto& remark) { return remark.holds(subject); });
  return found == std::end(remarks) ? std::string_view{} : found->text;
}

struct Place {
  std::string_view path;
  SearchEntry search;
  bool isSearch() const { return !search.folder.empty() || !search.pattern.empty(); }
};

bool isControl(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

// Patterns go to the disk as they stand, and to some of them < > " are wildcards.
bool holdsImpossible(const Place& place) {
  const std::string_view signs = place.isSearch() ? "|" : "<>|\"";
  return place.path.find_first_of(signs) != std::string_view::npos ||
         std::ranges::any_of(place.path, isControl);
}

constexpr std::string_view Verbatim = "\\\\?\\";  // begins a path that Windows takes as it stands

// Windows itself takes away a part that .. follows, and reads no wildcard in a path that it takes as it stands.
bool hasWildcardFolder(const Place& place) {
  const std::string_view folder = place.search.folder;
  return hasWildcard(folder) && !contains(folder, "..") && !folder.starts_with(Verbatim);
}

constexpr Remark<Place> reasons[] = {
    {[](const Place& p) { return !p.isSearch() && contains(p.path, SubfoldersMarkerUpper); },
     "the subdirectories marker counts only behind a pattern with ? or *"},
    {[](const Place& p) {
       return p.isSearch() && p.search.pattern.empty() && p.path.size() <= LongestUnsplit;
     },
     "an entry of three characters or less is not split into folder and pattern"},
    {hasWildcardFolder, "only the part behind the last backslash may hold ? or *"},
    {[](const Place& p) { return p.isSearch() && trim(p.search.pattern).empty(); },
     "no pattern stands behind the last backslash"},
    {[](const Place& p) { return p.path.ends_with('\\'); }, "it names no file"},
    {holdsImpossible, "it holds a character that no file name can hold"},
};

bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

bool isWhole(const std::string_view& path) {
  return isSeparator(path[0]) || (path.size() > 2 && path[1] == ':' && isSeparator(path[2]));
}

// The place behind the colon of a drive, where the path names one.
std::size_t behindDrive(std::string_view path) {
  return path.starts_with(Verbatim) ? Verbatim.size() + 2 : 2;
}

constexpr Remark<std::string_view> pathRemarks[] = {
    {[](const std::string_view& path) { return !isWhole(path); }, "looked for from the current folder"},
    {[](const std::string_view& path) { return path.find(':', behindDrive(path)) != path.npos; },
     "a second colon names a stream of a file"},
};

constexpr Remark<Trace> refusals[] = {
    {[](const Trace& t) { return upperAscii(t.text) == NoEntriesUpper; },
     "only capitals, NO ENTRIES., end this list; the plugin is not counted"},
    {[](const Trace& t) { return t.noBackslash; }, "a registry entry needs a backslash behind the hive"},
    {[](const Trace&) { return true; }, "the marker needs its sign, \"- Key*\" or \"+ Value`= \""},
};

std::string_view behindHive(const Trace& trace) {
  return std::string_view(trace.text).substr(trace.text.find('\\') + 1);
}

std::string_view behindFirst(char sign, std::string_view text) {
  return text.substr(text.find(sign) + 1);
}

bool hasMarker(const Trace& trace) {
  return trace.keyForm || trace.valueForm;
}

bool hasMarkerInAnyCase(const Trace& trace) {
  const std::string upper = upperAscii(trace.text);
  return contains(upper, "KEY*") || contains(upper, "VALUE`");
}

bool hasEmptyPart(const Trace& trace) {
  return trace.path.starts_with('\\') || trace.path.ends_with('\\') || contains(trace.path, "\\\\");
}

constexpr Remark<Trace> traceRemarks[] = {
    {[](const Trace& t) { return !hasMarker(t) && hasMarkerInAnyCase(t); },
     "the marker must read Key* or Value`, in this case"},
    {[](const Trace& t) { return !hasMarker(t); }, "it has no marker \"- Key*\" or \"+ Value`= \""},
    {[](const Trace& t) { return !t.hive; }, "no hive has this name, and the one of the entry before counts"},
    {[](const Trace& t) { return t.keyForm && t.valueForm; }, "it has both markers"},
    {[](const Trace& t) { return t.keyForm && trim(behindFirst('-', behindHive(t))) != "Key*"; },
     "the key's path ends at its first hyphen"},
    {[](const Trace& t) {
       return t.valueForm && !trim(behindFirst('+', behindHive(t))).starts_with("Value`");
     },
     "the key's path ends at its first plus sign"},
    {[](const Trace& t) {
       return t.valueForm && std::ranges::count(behindFirst('`', behindHive(t)), '=') != 1;
     },
     "the value's name begins behind the last equals sign"},
    {[](const Trace& t) { return t.path.empty(); }, "no key stands between the hive and the marker"},
    {hasEmptyPart, "a part of the path is empty, which not every Windows passes over"},
    {[](const Trace& t) { return trim(t.path) != t.path; },
     "a blank at an end of the path counts as part of a key's name"},
};

}  // namespace

std::string_view whyNever(std::string_view path, const SearchEntry& search) {
  return firstOf(reasons, Place{path, search});
}

std::string_view remarkOnPath(std::string_view path) {
  return firstOf(pathRemarks, path);
}

std::string_view whyRefused(const Trace& trace) {
  return firstOf(refusals, trace);
}

std::string_view remarkOn(const Trace& trace) {
  return firstOf(traceRemarks, trace);
}

std::string keyOf(const Trace& trace, Hive hive) {
  std::string_view path = trace.path;
  if (path.ends_with('\\')) path.remove_suffix(1);  // as the system does
  const auto* row = std::ranges::find(HiveNames, hive, &HiveName::hive);
  if (row == HiveNames.end()) return joined({"the key ", path, " of the hive that came before"});
  if (path.empty()) return joined({"the hive ", row->name, " itself"});
  return joined({"the key ", row->name, "\\", path});
}

}  // namespace zub
