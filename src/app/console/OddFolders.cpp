#include "app/console/OddFolders.h"

#include <string_view>

#include "app/console/RegistryLook.h"
#include "base/Text.h"

namespace zub {
namespace {

constexpr std::string_view LookedUp[] = {"Recent", "AppData", "Cache", "History", "Cookies"};
constexpr std::uint32_t Longest = 1024;  // that a wash reads

// Empty where there is nothing to tell.
std::string oddity(Registry& registry, RegistryKey key, std::string_view name) {
  ValueType type{};
  std::uint32_t length = 0;
  if (registry.query(key, name, type, nullptr, length) != status::Success) return {};
  if (length > Longest) return "is longer than 1024 bytes, which a wash does not read";
  std::string data;
  data.resize(length);
  auto* bytes = reinterpret_cast<std::uint8_t*>(data.data());
  if (registry.query(key, name, type, bytes, length) != status::Success || length == 0) return {};
  if (data.back() == '\0') return {};
  data.pop_back();
  return "is stored without its end: a wash looks for " + data;
}

}  // namespace

std::vector<std::string> oddFolders(Registry& registry) {
  std::vector<std::string> lines;
  OpenKey key(registry);
  constexpr std::uint32_t onlyReading = 1;
  if (key.open(Hive::CurrentUser, shellFolders, onlyReading) != status::Success) return lines;
  for (const std::string_view name : LookedUp) {
    const std::string odd = oddity(registry, key.get(), name);
    if (!odd.empty()) lines.push_back(joined({"the shell's folder \"", name, "\" ", odd}));
  }
  return lines;
}

}  // namespace zub
