// The folders of the running system and of the running program.
#pragma once

#include "platform/Services.h"

namespace zub {

class Win32SystemFolders : public SystemFolders {
 public:
  std::string temp(std::uint32_t room) override;
  std::string windows() override;
  std::string programFolder() override;
  std::string programFile() override;
  std::string current() override;
};

}  // namespace zub
