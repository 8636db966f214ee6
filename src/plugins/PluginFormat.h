// What the lines of a custom plugin's files are made of. 8-bit text in the PC's ANSI code page, lines ended
// by CR LF, one entry a line.
//
//   .zb1   C:\FOLDER\FILE                             one file
//          C:\FOLDER\PATTERN                          the files of the folder; the pattern has "?" or "*"
//          C:\FOLDER\PATTERN >plus subdirectories<    these, and those in all folders below
//          No entries.                                ends the list
//   .zb2   a trace (engine/Trace.h)
//          NO ENTRIES.                                ends the list; in any other case it is a trace, and
//                                                     ends the plugin
//   .zb3   the information line, then the comments
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/CodePage.h"
#include "plugins/Action.h"

namespace zub {

enum class PluginFile : std::uint8_t { Files, Registry, Comments };
inline constexpr std::array<std::string_view, 3> pluginExtensions{".zb1", ".zb2", ".zb3"};

constexpr std::string_view extensionOf(PluginFile file) {
  return pluginExtensions[static_cast<std::size_t>(file)];
}

// What an editor list without entries holds, and how a run knows it.
inline constexpr std::string_view NoEntries = "No entries.";
inline constexpr std::string_view NoEntriesUpper = "NO ENTRIES.";

// Behind a pattern and one blank: the folders below, too.
inline constexpr std::string_view SubfoldersMarker = ">plus subdirectories<";
inline constexpr std::string_view SubfoldersMarkerUpper = ">PLUS SUBDIRECTORIES<";

inline bool hasWildcard(std::string_view entry) {
  return entry.find_first_of("?*") != std::string_view::npos;
}

// What a line does in a run. None where it ends the list. A line for files is read without regard to case.
std::optional<Action> actionOf(const CodePage& codePage, PluginFile file, std::string_view line);

struct SearchEntry {
  std::string_view folder;
  std::string_view pattern;
};
inline constexpr std::size_t LongestUnsplit = 3;
// Splits an entry with a wildcard at its last backslash; one of three characters or less is all folder.
// RuntimeError 5 for a longer one without a backslash.
SearchEntry splitSearchEntry(std::string_view entry);

}  // namespace zub
