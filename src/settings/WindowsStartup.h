// The program's entry under the system's Run keys. It is never simply deleted: while the option is off it is
// parked under the twin key "Run-", which the system ignores. Both roots get it; where there are no rights,
// or no such key, nothing happens and nothing is told.
#pragma once

#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace zub {

inline constexpr std::string_view runKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr std::string_view parkedKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run-";

class WindowsStartup {
 public:
  explicit WindowsStartup(Registry& registry) : registry_(registry) {}

  void AddStartupEntry(std::string_view data, std::string_view name);
  void RemoveStartupEntry(std::string_view data, std::string_view name);

 private:
  void move(std::string_view from, std::string_view to, std::string_view data, std::string_view name);
  Registry& registry_;
};

// The entry's command: the running program with /STARTUP.
std::string startupCommand(SystemFolders& folders);

}  // namespace zub
