// What the shell does for the program.
#pragma once

#include "platform/Services.h"
#include "platform/win32/OwnerWindow.h"

namespace zub {

class Win32Shell : public Shell {
 public:
  explicit Win32Shell(OwnerWindow owner) : owner_(std::move(owner)) {}
  std::int32_t emptyRecycleBin(std::uint32_t flags) override;
  std::vector<std::string> recycleBins() override;
  void updateRecycleBinIcon() override;
  void open(std::string_view document) override;
  void start(std::string_view program) override;
  FolderPick browseForFolder(std::string_view prompt) override;

 private:
  OwnerWindow owner_;
};

}  // namespace zub
