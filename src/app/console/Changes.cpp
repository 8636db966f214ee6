#include "app/console/Changes.h"

#include "platform/folder/HostText.h"
#include "platform/folder/RegistryChanges.h"
#include "settings/INIFile.h"
#include "settings/WindowsStartup.h"

namespace zub {
namespace {

constexpr std::string_view StartupEntry = "Zubrane";  // the value's name in the Run keys

bool isAtOrBelow(std::string_view path, std::string_view top) {
  return path.size() >= top.size() && equalFolded(path.substr(0, top.size()), top) &&
         (path.size() == top.size() || path[top.size()] == '\\');
}

// The path below the hive, and in HKEY_USERS below the user's branch.
std::string_view belowUser(std::string_view path) {
  constexpr std::string_view users = "HKEY_USERS\\";
  if (equalFolded(path.substr(0, users.size()), users)) path.remove_prefix(users.size());
  const auto end = path.find('\\');
  return end == std::string_view::npos ? std::string_view() : path.substr(end + 1);
}

bool isOwn(std::string_view path, std::string_view name, bool isValue) {
  const std::string_view key = belowUser(path);
  if (isAtOrBelow(key, storeKey)) return true;
  return isValue && name == StartupEntry && (equalFolded(key, runKey) || equalFolded(key, parkedKey));
}

}  // namespace

bool saveChanges(FolderPc& pc, bool withSettings, std::string_view below) {
  const std::optional<std::string> original = readHostText(pc.root(), FolderPc::OriginalName);
  if (!original) return false;
  RegistryTree before = readRegistryText(*original, FolderPc::OriginalName);
  const LeftOut leftOut = [&](std::string_view path, std::string_view name, bool isValue) {
    // The keys around what is asked for are gone through, and nothing of theirs is told.
    const bool around = !isValue && isAtOrBelow(below, path);
    if (!below.empty() && !around && !isAtOrBelow(path, below)) return true;
    return !withSettings && isOwn(path, name, isValue);
  };
  replaceHostText(pc.root(), ChangesName, changesText(before, pc.registryTree(), formOf(*original), leftOut));
  return true;
}

}  // namespace zub
