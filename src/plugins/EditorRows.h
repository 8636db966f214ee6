// Rows of the plugin editor's two lists, and the boxes that a row is made from and shown in. The boxes cut a row more
// forgivingly than a run does: markers count in any case, and a value's name begins at the first "=".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"

namespace zub {

struct FileBoxes {
  std::string folder;
  std::string name;     // of an entry without wildcards
  std::string pattern;  // of an entry by pattern; keeps a blank before the marker
  bool byPattern = false;
  bool subfolders = false;

  bool operator==(const FileBoxes&) const = default;
};

// The boxes' texts are trimmed, the folder gets its backslash. `folder` is not blank.
std::string fileRow(const FileBoxes& boxes);
// None for a row that shows nothing: "No entries." and whatever has no backslash.
std::optional<FileBoxes> fileBoxes(const CodePage& codePage, std::string_view row);

enum class RegistryKind : std::uint8_t { Key, Value };

struct RegistryBoxes {
  std::optional<std::size_t> hive;  // none where the row names none: the hive box stays as it was
  std::optional<RegistryKind> kind;
  std::string path;
  std::optional<std::string> keyValue;

  bool operator==(const RegistryBoxes&) const = default;
};

// The hives that the editor offers, in its order. Not all are spelt as a run matches them.
const std::vector<std::string>& editorHives();
inline constexpr int CurrentUserRow = 3;

// `path` and `keyValue` are not blank; they are trimmed.
std::string registryRow(std::string_view hive, std::string_view path, RegistryKind kind,
                        std::string_view keyValue);
// Of a row that is neither empty nor "No entries.".
RegistryBoxes registryBoxes(const CodePage& codePage, std::string_view row);

// The row stands for an empty list.
bool isNoEntries(const CodePage& codePage, std::string_view row);

}  // namespace zub
