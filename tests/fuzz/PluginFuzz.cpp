// Whatever the lines of a plugin's files are: the editor's boxes and the check stand them, and rows that are edited
// again and again do not grow.
#include <algorithm>

#include "base/Text.h"
#include "fuzz/Fuzz.h"
#include "plugins/EditorRows.h"
#include "plugins/PluginCheck.h"

namespace {

using namespace zub;

// A row that the editor itself made does not grow when it is clicked and added again.
void rebuildFileRow(const CodePage& codePage, std::string_view line) {
  const auto boxes = fileBoxes(codePage, line);
  if (!boxes || trim(boxes->folder).empty()) return;
  const std::string row = fileRow(*boxes);
  const auto again = fileBoxes(codePage, row);
  require(again.has_value());
  if (!trim(again->folder).empty()) require(fileRow(*again).size() <= row.size());
}

void rebuildRegistryRow(const CodePage& codePage, std::string_view line) {
  const RegistryBoxes boxes = registryBoxes(codePage, line);
  require(!boxes.hive || *boxes.hive < editorHives().size());
  require(boxes.kind.has_value() == boxes.keyValue.has_value());
  if (!boxes.kind || trim(boxes.path).empty() || trim(*boxes.keyValue).empty()) return;
  const std::string& hive = editorHives()[boxes.hive.value_or(CurrentUserRow)];
  const std::string row = registryRow(hive, boxes.path, *boxes.kind, *boxes.keyValue);
  require(row.starts_with(hive + "\\"));
}

}  // namespace

void zub::fuzz(std::string_view bytes) {
  static WashFixture wash;
  PluginCheck check(wash.engine);
  const CodePage& codePage = *wash.engine.pc.codePage;
  for (const PluginFile which : {PluginFile::Files, PluginFile::Registry}) {
    check.begin(which);
    for (std::string_view text = bytes; !text.empty();) {
      const auto end = std::min(text.find('\n'), text.size());
      const std::string_view line = text.substr(0, end);
      text.remove_prefix(std::min(end + 1, text.size()));
      require(check.next(line).text == line);
      rebuildFileRow(codePage, line);
      rebuildRegistryRow(codePage, line);
    }
  }
}
