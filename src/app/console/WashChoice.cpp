#include "app/console/WashChoice.h"

#include <algorithm>

#include "app/console/NearMiss.h"
#include "base/Text.h"

namespace zub {
namespace {

struct TaskName {
  std::string_view name;
  int row;
};
constexpr TaskName taskNames[] = {
    {"documents", iconRow::DocumentHistory},
    {"find", iconRow::FindHistory},
    {"run", iconRow::RunHistory},
    {"temp", iconRow::TempFolder},
    {"scandisk", iconRow::ScanDisk},
    {"recycle", iconRow::RecycleBin},
    {"office", iconRow::Office},
    {"media", iconRow::MediaPlayer},
    {"netscape", iconRow::Netscape},
    {"ie", iconRow::InternetExplorer},
};
constexpr std::string_view tickedPlugins = "plugins";

int taskRow(const std::string& name) {
  const auto task = std::ranges::find(taskNames, name, &TaskName::name);
  if (task != std::end(taskNames)) return task->row;
  std::vector<std::string> names{std::string(tickedPlugins)};
  for (const TaskName& known : taskNames) names.emplace_back(known.name);
  const std::string near = didYouMean(name, names);
  std::string all;
  for (const std::string& known : names) all += " " + known;
  throw UsageError("there is no task \"" + name + "\"" + (near.empty() ? "; there are" + all : near));
}

std::vector<bool> ticksOf(const ListRows& rows) {
  std::vector<bool> ticks;
  for (int row = 0; row < rows.ListCount(); ++row) ticks.push_back(rows.Selected(row));
  return ticks;
}

void tick(ListRows& rows, const std::vector<bool>& ticks) {
  for (std::size_t row = 0; row < ticks.size(); ++row) rows.Selected(static_cast<int>(row), ticks[row]);
}

bool tick(ListRows& rows, const std::string& name) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (rows.List(row) != name) continue;
    rows.Selected(row, true);
    return true;
  }
  return false;
}

}  // namespace

WashChoice::WashChoice(const Given& given) : plugins_(given.valuesOf("--plugin")) {
  for (std::string names : given.valuesOf("--only")) {
    names += ',';
    for (auto end = names.find(','); end != std::string::npos; end = names.find(',')) {
      const std::string name = names.substr(0, end);
      names.erase(0, end + 1);
      if (name == tickedPlugins) {
        tickedPlugins_ = true;
      } else {
        tasks_.push_back(taskRow(name));
      }
    }
    narrows_ = true;
  }
  narrows_ |= !plugins_.empty();
}

void WashChoice::apply(Program& program) {
  if (!narrows_) return;
  Options& options = program.options;
  for (int row = 0; row < IconChecks::Count; ++row) {
    checks_[static_cast<std::size_t>(row)] = options.LstIcons.Check(row);
    options.LstIcons.Check(row, std::ranges::count(tasks_, row) > 0);
  }
  custom_ = ticksOf(options.lstFiles);
  standard_ = ticksOf(options.standardlist);
  skipPlugins_ = options.chkSkipPlugins.Value();
  applied_ = true;
  if (!tickedPlugins_) {
    options.lstFiles.selectAll(false);
    options.standardlist.selectAll(false);
  }
  if (!plugins_.empty()) options.chkSkipPlugins.Value(0);
  for (const std::string& name : plugins_) {
    const bool custom = tick(options.lstFiles, name);
    const bool standard = tick(options.standardlist, name);
    if (!custom && !standard) throw Refusal("there is no plugin \"" + name + "\"");
  }
}

void WashChoice::restore(Options& options) const {
  if (!applied_) return;
  for (int row = 0; row < IconChecks::Count; ++row) {
    options.LstIcons.Check(row, checks_[static_cast<std::size_t>(row)]);
  }
  tick(options.lstFiles, custom_);
  tick(options.standardlist, standard_);
  options.chkSkipPlugins.Value(skipPlugins_);
}

}  // namespace zub
