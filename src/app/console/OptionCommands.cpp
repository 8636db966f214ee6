#include <algorithm>
#include <functional>

#include "app/console/Commands.h"
#include "app/console/Store.h"
#include "base/Text.h"
#include "settings/INIFile.h"

namespace zub {
namespace {

struct Setting {
  std::string name;
  std::string value;
  int highest;  // the values are 0 to this
  std::function<void(int)> set;
};

void addRows(std::vector<Setting>& settings, std::string_view prefix, ListRows& rows) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    settings.push_back({std::string(prefix) + rows.List(row), rows.Selected(row) ? "1" : "0", 1,
                        [&rows, row](int value) { rows.Selected(row, value == 1); }});
  }
}

// Everything that can be set, in the order of the store.
std::vector<Setting> settingsOf(Options& options) {
  std::vector<Setting> settings;
  for (int row = 0; row < IconChecks::Count; ++row) {
    settings.push_back({std::string(iconNames[static_cast<std::size_t>(row)]),
                        std::to_string(options.LstIcons.Check(row)), 1,
                        [&options, row](int value) { options.LstIcons.Check(row, value); }});
  }
  for (const FlagName& flag : flagNames) {
    CheckOption& option = options.*flag.option;
    settings.push_back({std::string(flag.stored), std::to_string(option.Value()), 1,
                        [&option](int value) { option.Value(value); }});
  }
  for (const DigitName& digit : digitNames) {
    Combo& combo = options.*digit.combo;
    settings.push_back({std::string(digit.stored), std::to_string(combo.ListIndex()), combo.ListCount() - 1,
                        [&combo](int value) { combo.ListIndex(value); }});
  }
  addRows(settings, customPluginPrefix, options.lstFiles);
  addRows(settings, standardPluginPrefix, options.standardlist);
  return settings;
}

void apply(std::vector<Setting>& settings, const std::string& argument) {
  const auto sign = argument.rfind('=');  // a plugin's name may hold the sign
  const std::string name = argument.substr(0, sign);
  const std::string value = argument.substr(sign + 1);
  const auto setting = std::ranges::find(settings, name, &Setting::name);
  if (setting == settings.end()) throw Refusal("there is no setting \"" + name + "\"");
  if (value.size() != 1 || value[0] < '0' || value[0] - '0' > setting->highest) {
    throw Refusal("\"" + name + "\" takes 0 to " + std::to_string(setting->highest) + ", not \"" + value +
                  "\"");
  }
  setting->set(value[0] - '0');
}

}  // namespace

void checkSet(const Given& given) {
  if (given.arguments.empty()) throw UsageError("set takes NAME=VALUE");
  for (const std::string& argument : given.arguments) {
    if (!contains(argument, "=")) throw UsageError("\"" + argument + "\" is not NAME=VALUE");
  }
}

int optionsCommand(CommandContext& context) {
  Store store(context.pc.platform());
  context.print("lblLastRemoval=" + store.options.lblLastRemoval.Caption);
  for (const Setting& setting : settingsOf(store.options)) context.print(setting.name + "=" + setting.value);
  return exitStatus::Done;
}

int setCommand(CommandContext& context) {
  context.needAlone();
  Store store(context.pc.platform());
  std::vector<Setting> settings = settingsOf(store.options);
  for (const std::string& argument : context.given.arguments) apply(settings, argument);
  for (const CatalogueRow& row : store.catalogue.rows()) {
    const std::string tick = joined({standardPluginPrefix, row.name, "=1"});
    if (row.warns() && std::ranges::find(context.given.arguments, tick) != context.given.arguments.end()) {
      context.tell(row.name + ": " + row.description);
    }
  }
  store.save();
  context.pc.save();
  return exitStatus::Done;
}

}  // namespace zub
