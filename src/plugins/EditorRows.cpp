#include "plugins/EditorRows.h"

#include <algorithm>

#include "base/Text.h"
#include "engine/Trace.h"
#include "plugins/PluginFormat.h"

namespace zub {
std::string fileRow(const FileBoxes& boxes) {
  std::string row = withBackslash(trim(boxes.folder));
  if (!boxes.byPattern) return row += trim(boxes.name);
  row += trim(boxes.pattern);
  if (boxes.subfolders) (row += ' ') += SubfoldersMarker;
  return row;
}

std::optional<FileBoxes> fileBoxes(const CodePage& codePage, std::string_view row) {
  if (isNoEntries(codePage, row) || !contains(row, "\\")) return std::nullopt;
  FileBoxes boxes;
  boxes.byPattern = hasWildcard(row);
  if (boxes.byPattern) {
    const auto marker = codePage.upper(row).find(SubfoldersMarkerUpper);
    boxes.subfolders = marker != std::string::npos;
    row = row.substr(0, marker);
  }
  (boxes.byPattern ? boxes.pattern : boxes.name) = lastPathPart(row);
  boxes.folder = withoutLastPathPart(row);
  return boxes;
}

const std::vector<std::string>& editorHives() {
  static const std::vector<std::string> hives = [] {
    std::vector<std::string> names;
    for (const Hive hive : {Hive::ClassesRoot, Hive::LocalMachine, Hive::CurrentConfig, Hive::CurrentUser,
                            Hive::Users, Hive::DynData, Hive::PerformanceData}) {
      names.emplace_back(std::ranges::find(HiveNames, hive, &HiveName::hive)->inEditor);
    }
    return names;
  }();
  return hives;
}

std::string registryRow(std::string_view hive, std::string_view path, RegistryKind kind,
                        std::string_view keyValue) {
  path = trim(path);
  std::string row(hive);
  if (!path.starts_with('\\')) row += '\\';
  row += path;
  if (kind == RegistryKind::Value) return (row += ValueMarker) += trim(keyValue);
  return (withBackslash(row) += trim(keyValue)) += KeyMarker;
}

RegistryBoxes registryBoxes(const CodePage& codePage, std::string_view row) {
  RegistryBoxes boxes;
  const std::string upperRow = codePage.upper(row);
  for (std::size_t hive = 0; hive < editorHives().size() && !boxes.hive; ++hive) {
    if (contains(upperRow, codePage.upper(editorHives()[hive]))) boxes.hive = hive;
  }
  if (boxes.hive) row = row.substr(row.find('\\') + 1);

  if (contains(codePage.upper(row), "KEY*")) {
    boxes.kind = RegistryKind::Key;
    const std::string_view path = trim(row);
    row = path.substr(0, path.find('-'));
    boxes.keyValue = lastPathPart(row);
    row = trim(withoutLastPathPart(row));
  }
  if (contains(codePage.upper(row), "VALUE`")) {
    boxes.kind = RegistryKind::Value;
    boxes.keyValue = trim(row.substr(row.find('=') + 1));
    row = trim(row.substr(0, row.find('+')));
  }
  boxes.path = row;
  return boxes;
}

bool isNoEntries(const CodePage& codePage, std::string_view row) {
  return trim(codePage.upper(row)) == NoEntriesUpper;
}

}  // namespace zub
