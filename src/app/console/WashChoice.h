// What one wash does where the command line narrows it: the tasks of --only and the plugins of --plugin, ticked or not.
// The ticks come back before anything is stored.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/Program.h"
#include "app/console/Commands.h"

namespace zub {

class WashChoice {
 public:
  // UsageError where --only names no task.
  explicit WashChoice(const Given& given);

  void apply(Program& program);  // Refusal where there is no such plugin
  void restore(Options& options) const;

 private:
  bool narrows_ = false;
  bool tickedPlugins_ = false;
  std::vector<int> tasks_;  // rows of the icon list
  std::vector<std::string> plugins_;

  // As they were.
  bool applied_ = false;
  std::array<int, IconChecks::Count> checks_{};
  std::vector<bool> custom_;
  std::vector<bool> standard_;
  int skipPlugins_ = 0;
};

}  // namespace zub
