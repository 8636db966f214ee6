// The PC under the desktop: its files and the user's registry, seeded before a story and looked at after it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace zub::drive::pc {

namespace fs = std::filesystem;

// Folders of the user.
fs::path temp();
fs::path recent();
fs::path cookies();
fs::path appData();
fs::path programs();  // where the program is installed

// With the folders on the way.
void put(const fs::path& file, std::string_view bytes);
std::string bytesOf(const fs::path& file);
bool exists(const fs::path& path);
std::size_t filesIn(const fs::path& folder);
// Without a failure where there is nothing.
void remove(const fs::path& path);
// Enough work for a wash that a person can do something in its midst: files in the temporary folder that are shredded
// again and again. Returns their count.
std::size_t seedLongWork();

// Keys are told below HKEY_CURRENT_USER.
void putValue(const std::string& key, const std::string& name, std::string_view text);
std::optional<std::string> value(const std::string& key, const std::string& name);  // up to its first NUL
bool hasKey(const std::string& key);
void removeKey(const std::string& key);

// The program's store.
inline const std::string Store = "Software\\ZUB";
void option(const std::string& name, std::string_view value = "1");
std::string storedOption(const std::string& name);  // empty where there is none

}  // namespace zub::drive::pc
