// What a registry tells of the PC that it is of and of its users.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace zub {

inline constexpr std::string_view shellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// A text in which a variable that it begins with has its value.
std::string withValue(std::string text, std::string_view variable, std::string_view value);

// The data of a value up to its first NUL; empty where there is none.
std::string textOf(Registry& registry, Hive hive, std::string_view path, std::string_view name);
std::vector<std::string> keysOf(Registry& registry, Hive hive, std::string_view path);

// A folder that the shell keeps for the current user.
std::string shellFolderOf(Registry& registry, std::string_view name);

// The folder of a user's files, as the system or else the shell tells it; may be empty. `branch` is of HKEY_USERS; empty
// for HKEY_CURRENT_USER.
std::string profileOf(Registry& registry, const std::string& branch, std::string_view windows);
// A text below a user's branch, with its variables resolved as far as they are those of that user.
std::string textOfUser(Registry& registry, const std::string& branch, std::string_view path,
                       std::string_view name);

struct RegistryUser {
  std::string branch;  // of HKEY_USERS
  std::string profile;
};
// In the order of their names, without the branches that hold a user's classes only.
std::vector<RegistryUser> usersOf(Registry& registry, std::string_view windows);

}  // namespace zub
