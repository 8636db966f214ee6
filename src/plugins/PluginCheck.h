// Says line by line what a custom plugin's files do in a run, and what in them can never work.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "plugins/Action.h"
#include "plugins/PluginFormat.h"

namespace zub {

struct CheckedLine {
  int number;        // in its file, from 1
  std::string text;  // as it stands in the file
  std::string meaning;
  Meaning::Verdict verdict;
};

// The files of one plugin, in the order in which a run reads them: what stops the plugin in the first keeps
// the second from being read.
class PluginCheck {
 public:
  explicit PluginCheck(Engine& engine) : engine_(&engine) {}

  void begin(PluginFile which);  // Files or Registry: the comments do nothing
  CheckedLine next(std::string_view line);

  // A whole file of the PC. Fails as Files::open does.
  std::vector<CheckedLine> readFile(std::string_view path, PluginFile which);
  // A file from elsewhere.
  std::vector<CheckedLine> readText(std::string_view text, PluginFile which);

 private:
  enum class Reading : std::uint8_t { GoesOn, ListEnded, PluginStopped };
  Meaning meaningOf(std::string_view line);

  Engine* engine_;
  PluginFile which_ = PluginFile::Files;
  int number_ = 0;
  Reading reading_ = Reading::GoesOn;
  TraceState traces_;
};

}  // namespace zub
