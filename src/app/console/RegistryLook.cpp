#include "app/console/RegistryLook.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

constexpr std::array<std::string_view, 2> ProfileLists{
    "Software\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\",
    "Software\\Microsoft\\Windows\\CurrentVersion\\ProfileList\\"};
constexpr std::size_t LongestName = 256;  // with its NUL

}  // namespace

std::string withValue(std::string text, std::string_view variable, std::string_view value) {
  if (equalFolded(std::string_view(text).substr(0, variable.size()), variable)) {
    text.replace(0, variable.size(), value);
  }
  return text;
}

std::string textOf(Registry& registry, Hive hive, std::string_view path, std::string_view name) {
  OpenKey key(registry);
  if (key.open(hive, path, access::QueryValue) != status::Success) return {};
  ValueType type{};
  std::uint32_t length = 0;
  if (registry.query(key.get(), name, type, nullptr, length) != status::Success) return {};
  std::string data;
  data.resize(length);
  auto* bytes = reinterpret_cast<std::uint8_t*>(data.data());
  if (registry.query(key.get(), name, type, bytes, length) != status::Success) return {};
  return std::string(StripAtNull(data));
}

std::string textOfUser(Registry& registry, const std::string& branch, std::string_view path,
                       std::string_view name) {
  if (branch.empty()) return textOf(registry, Hive::CurrentUser, path, name);
  return textOf(registry, Hive::Users, joined({branch, "\\", path}), name);
}

std::string profileOf(Registry& registry, const std::string& branch, std::string_view windows) {
  for (const std::string_view list : ProfileLists) {
    std::string profile = textOf(registry, Hive::LocalMachine, joined({list, branch}), "ProfileImagePath");
    profile = withValue(std::move(profile), "%SystemDrive%", windows.substr(0, 2));
    profile = withValue(std::move(profile), "%SystemRoot%", windows);
    if (!profile.empty()) return profile;
  }
  const std::string desktop = textOfUser(registry, branch, shellFolders, "Desktop");
  return desktop.substr(0, std::min(desktop.rfind('\\'), desktop.size()));
}

std::vector<std::string> keysOf(Registry& registry, Hive hive, std::string_view path) {
  std::vector<std::string> names;
  OpenKey key(registry);
  if (key.open(hive, path, access::EnumerateSubKeys) != status::Success) return names;
  std::array<char, LongestName> name{};
  for (std::uint32_t index = 0;; ++index) {
    auto length = static_cast<std::uint32_t>(name.size());
    if (registry.enumKey(key.get(), index, name.data(), length) != status::Success) return names;
    names.emplace_back(name.data(), length);
  }
}

std::string shellFolderOf(Registry& registry, std::string_view name) {
  return textOf(registry, Hive::CurrentUser, shellFolders, name);
}

std::vector<RegistryUser> usersOf(Registry& registry, std::string_view windows) {
  constexpr std::string_view classes = "_Classes";
  std::vector<RegistryUser> users;
  for (std::string& branch : keysOf(registry, Hive::Users, "")) {
    if (branch.size() > classes.size() &&
        equalFolded(std::string_view(branch).substr(branch.size() - classes.size()), classes)) {
      continue;
    }
    std::string profile = profileOf(registry, branch, windows);
    users.push_back({std::move(branch), std::move(profile)});
  }
  return users;
}

}  // namespace zub
