// The folder of the custom plugins and what lies in it. A plugin is the three files NAME.zb1 (files),
// NAME.zb2 (registry) and NAME.zb3 (information); one without a .zb1 does not exist for the lists.
//
// The folder need not exist: the list is empty then, and saving a plugin makes it.
#pragma once

#include <string>
#include <string_view>

#include "engine/FileLister.h"

namespace zub {

class Engine;

class Plugins {
 public:
  // The folder is "Plugins" beside the program.
  explicit Plugins(Engine& engine);

  const std::string& CurPath() const { return path_; }
  void CurPath(std::string_view folder);
  // The path of a plugin's files, without their extension.
  std::string baseOf(std::string_view name) const;
  void MakeFolder();

  // Fills lstFiles with the plugins' names, no row ticked.
  void RefreshPluginList();
  // Removes the files of the current row of lstFiles as a wash does, without a question, and fills the list
  // again: the ticks of the other rows are off then.
  void RemovePlugin();

  FileLister zb1;
  FileLister zb2;

 private:
  void read(FileLister& lister);

  Engine& engine_;
  std::string path_;
};

}  // namespace zub
