#include "platform/folder/RegistryParts.h"

#include <algorithm>
#include <array>

#include "platform/folder/PcError.h"
#include "platform/folder/PcFacts.h"

namespace zub {
namespace {

struct Part {
  Hive hive;
  std::string_view path;
};
// The first of them that is there counts. A disk has no CurrentControlSet: the system makes it when it starts.
constexpr std::array<Part, 4> Parts{{
    {Hive::ClassesRoot, "HKEY_LOCAL_MACHINE\\Software\\Classes"},
    {Hive::CurrentConfig, "HKEY_LOCAL_MACHINE\\Config\\0001"},
    {Hive::CurrentConfig, "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Hardware Profiles\\0001"},
    {Hive::CurrentConfig, "HKEY_LOCAL_MACHINE\\System\\ControlSet001\\Hardware Profiles\\0001"},
}};

std::size_t positionOf(Hive hive) {
  return static_cast<std::size_t>(std::ranges::find(HiveNames, hive, &HiveName::hive) - HiveNames.begin());
}

bool showsNothing(const RegistryNode& node) {
  return node.keys.empty() && node.values.empty();
}

std::string branches(const RegistryNode& users) {
  std::string names;
  for (const auto& [name, key] : users.keys) names += (names.empty() ? "" : ", ") + utf8FromAnsi(name);
  return names.empty() ? "none" : names;
}

}  // namespace

void showParts(RegistryTree& tree, std::string_view user) {
  for (const Part& part : Parts) {
    const std::size_t position = positionOf(part.hive);
    RegistryNode* node = tree.find(part.path);
    if (node != nullptr && node->parent != nullptr && showsNothing(tree.shown(position)))
      tree.show(position, *node);
  }
  if (user.empty()) return;
  RegistryNode& users = tree.hive(positionOf(Hive::Users));
  RegistryNode* branch = users.find(user);
  if (branch == nullptr) {
    throw PcError("the registry", 0,
                  "HKEY_USERS has no \"" + utf8FromAnsi(user) + "\"; its branches: " + branches(users));
  }
  tree.show(positionOf(Hive::CurrentUser), *branch);
}

std::string shownPath(RegistryTree& tree, std::string_view path) {
  const std::string_view hive = path.substr(0, path.find('\\'));
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    if (equalFolded(HiveNames[i].name, hive))
      return tree.shown(i).path() + std::string(path.substr(hive.size()));
  }
  return std::string(path);
}

}  // namespace zub
