#include "plugins/CFolderBrowse.h"

#include "base/Text.h"

namespace zub {

CFolderBrowse::CFolderBrowse(Shell& shell) : shell_(shell), prompt_(DefaultPrompt) {}

void CFolderBrowse::Prompt(std::string_view prompt) {
  prompt_ = trim(prompt);
}

void CFolderBrowse::Browse() {
  if (prompt_.empty()) prompt_ = DefaultPrompt;
  const FolderPick pick = shell_.browseForFolder(prompt_);
  path_ = pick.chosen && pick.path ? StripAtNull(*pick.path) : std::string_view{};
}

}  // namespace zub
