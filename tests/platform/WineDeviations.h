// Where Wine (8.0) does not keep what Windows keeps: what a test tolerates there, by name, and why.
#pragma once

#include <string_view>

namespace zub {

struct WineDeviation {
  std::string_view name;
  std::string_view reason;
};

inline constexpr WineDeviation wineDeviations[] = {
    {"read-only", "its user root may write to read-only files"},
    {"missing drive", "a file on a drive that is not there is not found, not its path"},
    {"link",
     "the host's links are told as reparse points but opened as what they lead to; the program leaves "
     "them alone"},
    {"short capitals", "as Windows 98 it does not tell the 8.3 name of a short name in capitals"},
    {"user's branch", "as Windows 98 it shows the current user as a branch that the NT family would name"},
    {"no account", "the account that a task runs as is forgotten when the task is saved"},
    {"no triggers", "a task that was saved without triggers comes back with a switched-off daily one"},
};

}  // namespace zub
