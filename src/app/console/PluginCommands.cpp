#include <algorithm>

#include "app/console/Commands.h"
#include "app/console/Json.h"
#include "app/console/NearMiss.h"
#include "app/console/Store.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/folder/HostText.h"
#include "plugins/PluginCheck.h"
#include "plugins/StandardPluginRun.h"

namespace zub {
namespace {

void listRows(const CommandContext& context, const ListRows& rows) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    context.print((rows.Selected(row) ? "  [x] " : "  [ ] ") + rows.List(row));
  }
}

void addRows(Json& json, std::string_view name, const ListRows& rows) {
  json.array(name, [&] {
    for (int row = 0; row < rows.ListCount(); ++row) {
      json.object([&] {
        json.text("name", rows.List(row));
        json.flag("ticked", rows.Selected(row));
      });
    }
  });
}

void printMeaning(const CommandContext& context, std::string_view text, Meaning::Verdict verdict) {
  context.print(joined({verdict == Meaning::Verdict::Plain ? "     " : "   ! ", text}));
}

// True where a line can never work.
bool printLines(const CommandContext& context, const std::vector<CheckedLine>& lines) {
  for (const CheckedLine& line : lines) {
    context.print("  " + std::to_string(line.number) + ": " + line.text);
    printMeaning(context, line.meaning, line.verdict);
  }
  return std::ranges::find(lines, Meaning::Verdict::Never, &CheckedLine::verdict) != lines.end();
}

// As a run reads them: the second file only where the first is there.
void showCustom(const CommandContext& context, Store& store, const std::string& name) {
  context.print("Custom plugin " + name);
  PluginCheck check(store.engine);
  for (const PluginFile file : {PluginFile::Files, PluginFile::Registry}) {
    context.print(file == PluginFile::Files ? "Files:" : "Registry:");
    const std::string path = store.plugins.baseOf(name) + std::string(extensionOf(file));
    try {
      printLines(context, check.readFile(path, file));
    } catch (const RuntimeError& failure) {
      context.print("   ! A run ends here, and the plugin is not counted: " + path + ": " + failure.what());
      return;
    }
  }
}

void showStandard(const CommandContext& context, Store& store, const CatalogueRow& row) {
  context.print("Standard plugin " + row.name);
  context.print(row.description);
  for (const Meaning& meaning : describeStandardPlugin(store.engine, row)) {
    printMeaning(context, meaning.text, meaning.verdict);
  }
}

PluginFile kindOf(std::string_view name) {
  const std::string upper = upperAscii(name);
  if (upper.ends_with(".ZB1")) return PluginFile::Files;
  if (upper.ends_with(".ZB2")) return PluginFile::Registry;
  throw UsageError("plugin check reads .zb1 and .zb2 files");
}

// A file of the PC, by its path or its name in the plugin folder; where there is none, one of the machine that the
// PC's folder lies on, or of the current folder.
std::vector<CheckedLine> checkFile(const CommandContext& context, Store& store, PluginCheck& check,
                                   const std::string& name, PluginFile file) {
  const std::string path = contains(name, "\\") ? name : JoinPath(store.plugins.CurPath(), name);
  try {
    return check.readFile(path, file);
  } catch (const RuntimeError& failure) {
    if (context.pc.folder().empty() && store.engine.pc.files->attributes(name) != attribute::Invalid) {
      return check.readFile(name, file);
    }
    const auto text =
        context.pc.folder().empty() ? std::nullopt : readHostTextAt(context.pc.toTerminal(name));
    if (!text) throw Refusal(path + ": " + failure.what());
    return check.readText(*text, file);
  }
}

bool isRow(const ListRows& rows, std::string_view name) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (rows.List(row) == name) return true;
  }
  return false;
}

std::string nearPlugin(const Store& store, std::string_view name) {
  std::vector<std::string> names;
  for (const ListRows* rows : {&store.options.lstFiles, &store.options.standardlist}) {
    for (int row = 0; row < rows->ListCount(); ++row) names.push_back(rows->List(row));
  }
  return didYouMean(name, names);
}

}  // namespace

void checkPluginShow(const Given& given) {
  if (given.arguments.size() != 1) throw UsageError("plugin show takes one name");
}

void checkPluginCheck(const Given& given) {
  if (given.arguments.empty()) throw UsageError("plugin check takes files");
  for (const std::string& name : given.arguments) kindOf(name);
}

int pluginsCommand(CommandContext& context) {
  StoreToRead read(context.pc.platform(), context.loop, context.loop);
  Store& store = read.store;
  if (context.given.has("--json")) {
    Json json(context, "plugins");
    json.text("folder", store.plugins.CurPath());
    addRows(json, "custom", store.options.lstFiles);
    addRows(json, "standard", store.options.standardlist);
    json.write();
    return exitStatus::Done;
  }
  context.print("Custom plugins in " + store.plugins.CurPath() + ":");
  listRows(context, store.options.lstFiles);
  context.print("Standard plugins:");
  listRows(context, store.options.standardlist);
  return exitStatus::Done;
}

int pluginShowCommand(CommandContext& context) {
  const std::string& name = context.given.arguments[0];
  StoreToRead read(context.pc.platform(), context.loop, context.loop);
  Store& store = read.store;
  const CatalogueRow* standard = store.catalogue.find(name);
  const bool custom = isRow(store.options.lstFiles, name);
  if (standard == nullptr && !custom)
    throw Refusal("there is no plugin \"" + name + "\"" + nearPlugin(store, name));
  if (custom) showCustom(context, store, name);
  if (standard != nullptr) showStandard(context, store, *standard);
  return exitStatus::Done;
}

// Files of one plugin that stand side by side are read as one plugin's.
int pluginCheckCommand(CommandContext& context) {
  StoreToRead read(context.pc.platform(), context.loop, context.loop);
  Store& store = read.store;
  std::string plugin;
  PluginCheck check(store.engine);
  bool neverWorks = false;
  for (const std::string& name : context.given.arguments) {
    const PluginFile file = kindOf(name);
    const std::string base = name.substr(0, name.size() - extensionOf(file).size());
    if (base != plugin) check = PluginCheck(store.engine);
    plugin = base;
    const auto lines = checkFile(context, store, check, name, file);
    if (context.given.arguments.size() > 1) context.print(name + ":");
    neverWorks |= printLines(context, lines);
  }
  return neverWorks ? exitStatus::LeftBehind : exitStatus::Done;
}

}  // namespace zub
