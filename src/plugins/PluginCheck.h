// Says line by line what a custom plugin's files do in a run, and what in them can never work.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "plugins/EntryMeaning.h"
#include "plugins/PluginFormat.h"
#include "plugins/TraceProbe.h"

namespace zub {

struct CheckedLine {
  int number;        // in its file, from 1
  std::string text;  // as it stands in the file
  std::string meaning;
  bool works;  // false where the line never does what it seems to say
};

// The files of one plugin, in the order in which a run reads them: what stops the plugin in the first keeps
// the second from being read.
class PluginCheck {
 public:
  explicit PluginCheck(const Platform& pc) : files_(pc.files), codePage_(pc.codePage), probe_(pc) {}

  void begin(PluginFile which);  // Files or Registry: the comments do nothing
  CheckedLine next(std::string_view line);

  // A whole file. Fails as Files::open does.
  std::vector<CheckedLine> readFile(std::string_view path, PluginFile which);

 private:
  EntryMeaning meaningOf(std::string_view line);

  Files& files_;
  const CodePage& codePage_;
  TraceProbe probe_;
  PluginFile which_ = PluginFile::Files;
  int number_ = 0;
  EntryMeaning::Then state_ = EntryMeaning::Then::GoesOn;
  bool keyBefore_ = false;
};

}  // namespace zub
