// What a registry tells of the PC that it is of and of its users.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace zub {

// The data of a value up to its first NUL; empty where there is none.
std::string textOf(Registry& registry, Hive hive, std::string_view path, std::string_view name);
std::vector<std::string> keysOf(Registry& registry, Hive hive, std::string_view path);

// A folder that the shell keeps for the current user.
std::string shellFolderOf(Registry& registry, std::string_view name);

struct RegistryUser {
  std::string branch;   // of HKEY_USERS
  std::string profile;  // the user's folder, as the system or else the shell tells it; may be empty
};
// In the order of their names, without the branches that hold a user's classes only.
std::vector<RegistryUser> usersOf(Registry& registry, std::string_view windows);

}  // namespace zub
