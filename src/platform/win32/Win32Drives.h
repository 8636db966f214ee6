// The PC's own drives.
#pragma once

#include "platform/Services.h"

namespace zub {

class Win32Drives : public Drives {
 public:
  std::vector<std::string> list() override;
  bool exists(std::string_view drive) override;
  DriveType type(std::string_view drive) override;
};

}  // namespace zub
