// A Windows path taken apart, before anything on the disk is asked.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zub {

struct FolderPath {
  char drive = 'C';                // upper case
  std::vector<std::string> parts;  // as written, without blanks and dots at their ends; none for the root
  bool namesFolder = false;        // written with a separator at its end: no file is meant

  // "C:\Parts\Of it", folded: equal for equal paths.
  std::string key() const;
  // "C:\Parts\Of it" as written.
  std::string text() const;
};

// One part of a path that is an entry's name as it stands.
bool isPlainPart(std::string_view part);

enum class PathFault : std::uint8_t {
  None,
  BadName,    // holds a part that no file can have: an illegal character, a device, blanks and dots only
  NoNetwork,  // a network path; a PC in a folder has none
};

// "/" counts as a backslash, "." and ".." are worked out and never lead above the root. A path without a
// drive or without a root begins at `current`.
PathFault parsePath(std::string_view path, const FolderPath& current, FolderPath& result);

}  // namespace zub
