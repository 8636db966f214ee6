#include "app/console/Commands.h"
#include "app/console/Store.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "plugins/PluginCheck.h"

namespace zub {
namespace {

void listRows(const CommandContext& context, const ListRows& rows) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    context.print((rows.Selected(row) ? "  [x] " : "  [ ] ") + rows.List(row));
  }
}

void printLines(const CommandContext& context, const std::vector<CheckedLine>& lines) {
  for (const CheckedLine& line : lines) {
    context.print("  " + std::to_string(line.number) + ": " + line.text);
    context.print((line.works ? "     " : "   ! ") + line.meaning);
  }
}

std::string_view baseName(CatalogueAction::Base base) {
  switch (base) {
    case CatalogueAction::Base::AppData:
      return "application data folder";
    case CatalogueAction::Base::Windows:
      return "Windows folder";
    case CatalogueAction::Base::Registry:
      return "folder named by ";
    case CatalogueAction::Base::None:
      break;
  }
  return "";
}

std::string describe(const CatalogueAction& action) {
  const std::string base = std::string(baseName(action.base)) +
                           (action.base == CatalogueAction::Base::Registry ? action.trace : "") + ": ";
  switch (action.kind) {
    case CatalogueAction::Kind::File:
      return "file in the " + base + action.path;
    case CatalogueAction::Kind::FilesOfFolder:
      return "files in the " + base + action.path + "\\" + action.pattern;
    case CatalogueAction::Kind::Trace:
      break;
  }
  return "registry: " + action.trace;
}

bool isRow(const ListRows& rows, std::string_view name) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (rows.List(row) == name) return true;
  }
  return false;
}

}  // namespace

int pluginsCommand(CommandContext& context) {
  context.needNoArguments("plugins");
  Store store(context.pc.platform());
  context.print("Custom plugins in " + store.plugins.CurPath() + ":");
  listRows(context, store.options.lstFiles);
  context.print("Standard plugins:");
  listRows(context, store.options.standardlist);
  return exitStatus::Done;
}

int pluginShowCommand(CommandContext& context) {
  if (context.arguments.size() != 1) throw UsageError("plugin show takes one name");
  const std::string& name = context.arguments[0];
  Store store(context.pc.platform());
  const CatalogueRow* standard = store.catalogue.find(name);
  const bool custom = isRow(store.options.lstFiles, name);
  if (standard == nullptr && !custom) throw UsageError("there is no plugin \"" + name + "\"");
  if (custom) {
    const std::string base = store.plugins.baseOf(name);
    PluginCheck check(store.engine.pc);
    context.print("Custom plugin " + name);
    context.print("Files:");
    printLines(context, check.readFile(base + ".zb1", PluginFile::Files));
    context.print("Registry:");
    printLines(context, check.readFile(base + ".zb2", PluginFile::Registry));
  }
  if (standard != nullptr) {
    context.print("Standard plugin " + name);
    context.print(standard->description);
    for (const CatalogueAction& action : standard->actions) context.print("  " + describe(action));
  }
  return exitStatus::Done;
}

// A file of the PC; a name without a folder is one of the plugin folder.
int pluginCheckCommand(CommandContext& context) {
  if (context.arguments.size() != 1) throw UsageError("plugin check takes one file");
  Store store(context.pc.platform());
  std::string path = context.arguments[0];
  if (!contains(path, "\\")) path = JoinPath(store.plugins.CurPath(), path);
  const std::string folded = store.engine.pc.codePage.upper(path);
  if (!folded.ends_with(".ZB1") && !folded.ends_with(".ZB2")) {
    throw UsageError("plugin check reads .zb1 and .zb2 files");
  }
  PluginCheck check(store.engine.pc);
  try {
    printLines(context,
               check.readFile(path, folded.ends_with(".ZB1") ? PluginFile::Files : PluginFile::Registry));
  } catch (const RuntimeError& failure) {
    throw UsageError(path + ": " + failure.what());
  }
  return exitStatus::Done;
}

}  // namespace zub
