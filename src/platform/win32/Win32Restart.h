// Removals that wait for the next start of the system.
#pragma once

#include "platform/Services.h"

namespace zub {

class Win32Restart : public Restart {
 public:
  void deleteAtRestart(std::string_view file) override;
  void writeProfile(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override;
  std::uint32_t platformId(std::uint32_t recordSize) override;
};

}  // namespace zub
