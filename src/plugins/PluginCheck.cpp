#include "plugins/PluginCheck.h"

#include <algorithm>

#include "engine/Engine.h"
#include "platform/FileReader.h"

namespace zub {

void PluginCheck::begin(PluginFile which) {
  which_ = which;
  number_ = 0;
  if (reading_ == Reading::ListEnded) reading_ = Reading::GoesOn;
}

CheckedLine PluginCheck::next(std::string_view line) {
  Meaning meaning = meaningOf(line);
  return {++number_, std::string(line), std::move(meaning.text), meaning.verdict};
}

Meaning PluginCheck::meaningOf(std::string_view line) {
  using enum Meaning::Verdict;
  if (reading_ == Reading::ListEnded) return {"Is not read: the list has ended above", Never};
  if (reading_ == Reading::PluginStopped) return {"Is not read: the plugin has stopped above", Never};
  const auto action = actionOf(*engine_->pc.codePage, which_, line);
  if (!action) {
    reading_ = Reading::ListEnded;
    return {"Ends the list"};
  }
  Meaning meaning = describe(*engine_, *action, {}, traces_);
  if (meaning.stops) reading_ = Reading::PluginStopped;
  return meaning;
}

std::vector<CheckedLine> PluginCheck::readFile(std::string_view path, PluginFile which) {
  FileReader file(*engine_->pc.files, path);
  begin(which);
  std::vector<CheckedLine> lines;
  std::string line;
  while (file.line(line)) lines.push_back(next(line));
  return lines;
}

std::vector<CheckedLine> PluginCheck::readText(std::string_view text, PluginFile which) {
  begin(which);
  std::vector<CheckedLine> lines;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(next(line));
  }
  return lines;
}

}  // namespace zub
