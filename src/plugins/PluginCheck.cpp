#include "plugins/PluginCheck.h"

#include <utility>

#include "platform/FileReader.h"

namespace zub {

using Then = EntryMeaning::Then;

void PluginCheck::begin(PluginFile which) {
  which_ = which;
  number_ = 0;
  if (state_ == Then::EndsList) state_ = Then::GoesOn;
}

CheckedLine PluginCheck::next(std::string_view line) {
  EntryMeaning meaning = meaningOf(line);
  return {++number_, std::string(line), std::move(meaning.text), meaning.works};
}

EntryMeaning PluginCheck::meaningOf(std::string_view line) {
  if (state_ == Then::EndsList) return {"Is not read: the list has ended above", false};
  if (state_ == Then::StopsPlugin) return {"Is not read: the plugin has stopped above", false};
  EntryMeaning meaning = which_ == PluginFile::Files
                             ? meaningOfFileEntry(codePage_, line)
                             : meaningOfRegistryEntry(probe_, codePage_, line, keyBefore_);
  state_ = meaning.then;
  return meaning;
}

std::vector<CheckedLine> PluginCheck::readFile(std::string_view path, PluginFile which) {
  FileReader file(files_, path);
  begin(which);
  std::vector<CheckedLine> lines;
  std::string line;
  while (file.line(line)) lines.push_back(next(line));
  return lines;
}

}  // namespace zub
