// A test PC with traces and decoys, and what a cleaner takes of them. Paths of folders end in a backslash,
// those of values are KEY "NAME".
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "support/WashFixture.h"

namespace zub {

using Paths = std::vector<std::string>;

// One path a line, in order.
inline std::string listed(Paths paths) {
  std::ranges::sort(paths);
  std::string text;
  for (const std::string& path : paths) text += path + "\n";
  return text;
}

struct CleanerPc : WashFixture {
  using WashFixture::WashFixture;

  void plant(const Paths& paths) {
    for (const std::string& path : paths) {
      const auto value = path.find(" \"");
      if (value != std::string::npos) {
        pc.value(path.substr(0, value), path.substr(value + 2, path.size() - value - 3), "x");
      } else if (path.starts_with("HKEY_")) {
        pc.key(path);
      } else if (path.ends_with('\\')) {
        pc.folder(path);
      } else {
        pc.file(path);
      }
    }
  }
  // The paths that are gone after the work, and those that are new, with "+ " in front; a changed file is both.
  std::string removedBy(const Handler& work) {
    const std::string before = pc.snapshot();
    work();
    Paths paths;
    std::istringstream diff(pc.diffSince(before));
    for (std::string line; std::getline(diff, line);) {
      const std::string sign = line.starts_with("- ") ? "" : "+ ";
      const std::string path = line.substr(line.find(' ', 2) + 1);
      if (line.find("file ") == 2) {
        paths.push_back(sign + path.substr(0, path.rfind(' ', path.rfind(' ') - 1)));
      } else if (line.find("folder ") == 2) {
        paths.push_back(sign + path + "\\");
      } else {
        paths.push_back(sign + path.substr(0, path.find(" = ")));
      }
    }
    return listed(paths);
  }
};

}  // namespace zub
