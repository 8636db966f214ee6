#include <algorithm>
#include <functional>

#include "app/Program.h"
#include "app/console/Commands.h"
#include "app/console/Json.h"
#include "app/console/NearMiss.h"
#include "app/console/Store.h"
#include "base/Text.h"
#include "plugins/StandardList.h"
#include "settings/INIFile.h"

namespace zub {
namespace {

struct Setting {
  std::string name;
  int value;
  int lowest;
  int highest;
  std::function<void(int)> set;
  std::string_view meaning;  // empty for a plugin's tick

  std::string values() const { return std::to_string(lowest) + " to " + std::to_string(highest); }
};

void addRows(std::vector<Setting>& settings, std::string_view prefix, ListRows& rows) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    settings.push_back({std::string(prefix) + rows.List(row),
                        rows.Selected(row) ? 1 : 0,
                        0,
                        1,
                        [&rows, row](int value) { rows.Selected(row, value == 1); },
                        {}});
  }
}

// Everything that can be set, in the order of the store. The passes of the shredder go by their number, too.
std::vector<Setting> settingsOf(Options& options) {
  std::vector<Setting> settings;
  for (int row = 0; row < IconChecks::Count; ++row) {
    const IconName& icon = iconNames[static_cast<std::size_t>(row)];
    settings.push_back({std::string(icon.stored), options.LstIcons.Check(row), 0, 1,
                        [&options, row](int value) { options.LstIcons.Check(row, value); }, icon.meaning});
  }
  for (const FlagName& flag : flagNames) {
    CheckOption& option = options.*flag.option;
    settings.push_back({std::string(flag.stored), option.Value(), 0, 1,
                        [&option](int value) { option.Value(value); }, flag.meaning});
  }
  for (const DigitName& digit : digitNames) {
    Combo& combo = options.*digit.combo;
    const int last = combo.ListCount() - 1;
    settings.push_back({std::string(digit.stored), combo.ListIndex(), 0, last,
                        [&combo](int value) { combo.ListIndex(value); }, digit.meaning});
    if (&combo != &options.cmbShredder) continue;
    settings.push_back({"passes", combo.ListIndex() + 1, 1, last + 1,
                        [&combo](int value) { combo.ListIndex(value - 1); },
                        "how often files are overwritten"});
  }
  addRows(settings, customPluginPrefix, options.lstFiles);
  addRows(settings, standardPluginPrefix, options.standardlist);
  return settings;
}

// By its name as it stands, or else without regard to case where that is clear.
const Setting& settingNamed(const CommandContext& context, const std::vector<Setting>& settings,
                            const std::string& name) {
  const auto exact = std::ranges::find(settings, name, &Setting::name);
  if (exact != settings.end()) return *exact;
  const CodePage& codePage = *context.pc.platform().codePage;
  const auto same = [&](const Setting& setting) {
    return codePage.upper(setting.name) == codePage.upper(name);
  };
  const auto found = std::ranges::find_if(settings, same);
  if (found != settings.end() && std::ranges::count_if(settings, same) == 1) return *found;
  std::vector<std::string> names;
  for (const Setting& setting : settings) names.push_back(setting.name);
  throw Refusal("there is no setting \"" + name + "\"" + didYouMean(name, names));
}

// "NAME=VALUE"; a plugin's name may hold the sign.
const Setting& apply(const CommandContext& context, const std::vector<Setting>& settings,
                     const std::string& argument) {
  const auto sign = argument.rfind('=');
  const std::string name = argument.substr(0, sign), value = argument.substr(sign + 1);
  const Setting& setting = settingNamed(context, settings, name);
  const int number = value.size() == 1 && value[0] >= '0' && value[0] <= '9' ? value[0] - '0' : -1;
  if (number < setting.lowest || number > setting.highest) {
    throw Refusal("\"" + setting.name + "\" takes " + setting.values() + ", not \"" + value + "\"");
  }
  setting.set(number);
  return setting;
}

// As a start of the program reads them. What the window does when an option is clicked is done from here on.
void readSettings(Program& program) {
  program.plugins->RefreshPluginList();
  listStandardPlugins(program.options.standardlist, program.catalogue);
  INIFile store(program.engine.pc, program.options);
  store.GetInfo();
  store.GetInfo2();
}

void printJson(const CommandContext& context, Options& options) {
  Json json(context, "options");
  json.text("lastRemoval", options.lblLastRemoval.Caption);
  json.array("options", [&] {
    for (const Setting& setting : settingsOf(options)) {
      json.object([&] {
        json.text("name", setting.name);
        json.number("value", setting.value);
        json.number("lowest", setting.lowest);
        json.number("highest", setting.highest);
        json.utf8("does", setting.meaning);
      });
    }
  });
  json.write();
}

}  // namespace

void checkSet(const Given& given) {
  if (given.arguments.empty()) throw UsageError("set takes NAME=VALUE");
  for (const std::string& argument : given.arguments) {
    if (!contains(argument, "=")) throw UsageError("\"" + argument + "\" is not NAME=VALUE");
  }
}

void checkGet(const Given& given) {
  if (given.arguments.size() != 1) throw UsageError("get takes one name");
}

int optionsCommand(CommandContext& context) {
  StoreToRead read(context.pc.platform(), context.loop, context.loop);
  Store& store = read.store;
  if (context.given.has("--json")) {
    printJson(context, store.options);
    return exitStatus::Done;
  }
  context.print("lblLastRemoval=" + store.options.lblLastRemoval.Caption);
  for (const Setting& setting : settingsOf(store.options)) {
    context.print(setting.name + "=" + std::to_string(setting.value));
    if (!setting.meaning.empty())
      context.print(joined({"    ", setting.meaning, " (", setting.values(), ")"}));
  }
  return exitStatus::Done;
}

int getCommand(CommandContext& context) {
  StoreToRead read(context.pc.platform(), context.loop, context.loop);
  Store& store = read.store;
  context.print(
      std::to_string(settingNamed(context, settingsOf(store.options), context.given.arguments[0]).value));
  return exitStatus::Done;
}

int setCommand(CommandContext& context) {
  context.needAlone();
  Program program(context.pc.platform());
  readSettings(program);
  const std::vector<Setting> settings = settingsOf(program.options);
  std::vector<std::string> names;
  for (const std::string& argument : context.given.arguments) {
    const Setting& setting = apply(context, settings, argument);
    if (argument.ends_with('1')) names.push_back(setting.name);
  }
  for (const CatalogueRow& row : program.catalogue.rows()) {
    const std::string name = joined({standardPluginPrefix, row.name});
    if (row.warns() && std::ranges::count(names, name) > 0) context.tell(row.name + ": " + row.description);
  }
  needStoreSaved(context.pc.platform(), program.options);
  context.pc.save();
  return exitStatus::Done;
}

}  // namespace zub
