// The system's folder picker.
#pragma once

#include <string>
#include <string_view>

#include "platform/Services.h"

namespace zub {

class CFolderBrowse {
 public:
  static constexpr std::string_view DefaultPrompt = "Select a folder";

  explicit CFolderBrowse(Shell& shell);

  // The folder picked last; empty where the user cancelled or picked what has no path.
  const std::string& Path() const { return path_; }
  const std::string& Prompt() const { return prompt_; }
  void Prompt(std::string_view prompt);  // without blanks around it; Browse replaces an empty one
  void Browse();

 private:
  Shell& shell_;
  std::string path_;
  std::string prompt_;
};

}  // namespace zub
