// What windows show, as text: each control with all of its state, and what has come of a step.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/Windows.h"

namespace zub {

constexpr std::string_view windowNames[] = {"main",           "progress", "report",     "preview",
                                            "preview-report", "editor",   "ie-cookies", "netscape-cookies",
                                            "about",          "message"};

// What a control shows but for its caption.
std::string stateOf(const layout::Shown& shown);

class Screen {
 public:
  explicit Screen(Windows& windows) : windows_(windows) { changes(); }

  // What differs from the last call, line by line: of the windows, of the timers, of what the program has told and
  // started, of the files and the registry.
  std::string changes();

 private:
  std::vector<std::string> lines() const;

  Windows& windows_;
  std::vector<std::string> told_;
  std::string before_;  // the files and the registry
};

}  // namespace zub
