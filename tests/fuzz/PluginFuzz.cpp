// Whatever the lines of a plugin's files are: the editor's boxes and the check stand them, and rows that are edited
// again and again do not grow.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/Text.h"
#include "plugins/EditorRows.h"
#include "plugins/PluginCheck.h"
#include "support/WashFixture.h"

using namespace zub;

namespace {

void require(bool holds) {
  if (!holds) __builtin_trap();
}

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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static WashFixture pc;
  PluginCheck check(pc.engine);
  const CodePage& codePage = *pc.engine.pc.codePage;
  for (const PluginFile which : {PluginFile::Files, PluginFile::Registry}) {
    check.begin(which);
    std::string_view text(reinterpret_cast<const char*>(data), size);
    while (!text.empty()) {
      const auto end = std::min(text.find('\n'), text.size());
      const std::string_view line = text.substr(0, end);
      text.remove_prefix(std::min(end + 1, text.size()));
      require(check.next(line).text == line);
      rebuildFileRow(codePage, line);
      rebuildRegistryRow(codePage, line);
    }
  }
  return 0;
}
