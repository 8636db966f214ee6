#include "platform/folder/FolderRegistry.h"

#include <algorithm>

#include "base/Text.h"
#include "platform/StoredData.h"

namespace zub {
namespace {

constexpr std::size_t MostSlots = 0xFFFF;
constexpr std::uint32_t GenerationMask = 0x7FFF;  // keeps handles clear of the hives

// What a key without rights refuses.
constexpr std::uint32_t Writing = access::SetValue | access::CreateSubKey | access::Delete;

struct KeyPath {
  RegistryStatus status = status::Success;
  std::vector<std::string_view> parts;
};

// The system drops one backslash at the end.
KeyPath splitPath(std::string_view path) {
  KeyPath result;
  path = StripAtNull(path);
  if (path.ends_with('\\')) path.remove_suffix(1);
  while (!path.empty()) {
    const auto end = std::min(path.find('\\'), path.size());
    if (end == 0 || end + 1 == path.size()) return {status::BadPath, {}};
    result.parts.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return result;
}

RegistryNode* findBelow(RegistryNode* node, const KeyPath& path) {
  for (const std::string_view part : path.parts) {
    if (node != nullptr) node = node->find(part);
  }
  return node;
}

RegistryStatus hand(const RegistryValue& value, ValueType& type, std::uint8_t* data,
                    std::uint32_t& dataLength) {
  type = value.type;
  return handData(value.data, data, dataLength);
}

bool isWithin(const RegistryNode* node, const RegistryNode* tree) {
  while (node != nullptr && node != tree) node = node->parent;
  return node != nullptr;
}

bool pathIsWithin(std::string_view path, std::string_view tree) {
  return path.size() >= tree.size() && equalFolded(path.substr(0, tree.size()), tree) &&
         (path.size() == tree.size() || path[tree.size()] == '\\');
}

}  // namespace

FolderRegistry::Slot* FolderRegistry::slotOf(RegistryKey key) {
  const std::size_t number = key & 0xFFFF;
  if (number == 0 || number > slots_.size()) return nullptr;
  Slot& slot = slots_[number - 1];
  return slot.used && slot.generation == key >> 16 ? &slot : nullptr;
}

FolderRegistry::Opened FolderRegistry::resolve(RegistryKey key, std::uint32_t rights) {
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    if (key == hive(HiveNames[i].hive)) return {status::Success, &tree_.shown(i)};
  }
  const Slot* slot = slotOf(key);
  if (slot == nullptr) return {status::InvalidHandle, nullptr};
  if (slot->node == nullptr) return {status::KeyDeleted, nullptr};
  return {(slot->rights & rights) == rights ? status::Success : status::AccessDenied, slot->node};
}

std::string FolderRegistry::pathOf(RegistryKey key) {
  const RegistryNode* node = resolve(key).node;
  return node == nullptr ? std::string{} : node->path();
}

RegistryStatus FolderRegistry::openSlot(RegistryNode& node, std::uint32_t rights, RegistryKey& opened) {
  if ((rights & Writing) != 0 && !writable(node)) return status::AccessDenied;
  auto place = std::ranges::find(slots_, false, &Slot::used);
  if (place == slots_.end()) {
    if (slots_.size() == MostSlots) return status::TooManyOpen;
    place = slots_.emplace(slots_.end());
  }
  place->node = &node;
  place->rights = rights;
  place->used = true;
  opened = RegistryKey{place->generation} << 16 | static_cast<RegistryKey>(place - slots_.begin() + 1);
  return status::Success;
}

// Such a key is always there, as it is on a running PC.
bool FolderRegistry::holdsHive(const RegistryNode& node) const {
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    if (isWithin(&tree_.shown(i), &node)) return true;
  }
  return false;
}

bool FolderRegistry::writable(const RegistryNode& node) const {
  if (rules_.noRights.empty()) return true;
  const std::string path = node.path();
  return std::ranges::none_of(rules_.noRights, [&](const auto& tree) { return pathIsWithin(path, tree); });
}

bool FolderRegistry::treeWritable(const RegistryNode& node) const {
  const std::string path = node.path();
  return writable(node) && std::ranges::none_of(rules_.noRights, [&](const std::string& closed) {
           return pathIsWithin(closed, path) && tree_.find(closed) != nullptr;
         });
}

RegistryStatus FolderRegistry::open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                    RegistryKey& opened) {
  const Opened key = resolve(parent);
  if (key.status != status::Success) return key.status;
  const KeyPath parts = splitPath(path);
  if (parts.status != status::Success) return parts.status;
  RegistryNode* node = findBelow(key.node, parts);
  return node == nullptr ? status::FileNotFound : openSlot(*node, rights, opened);
}

RegistryStatus FolderRegistry::create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                      RegistryKey& opened) {
  const Opened key = resolve(parent);
  if (key.status != status::Success) return key.status;
  const KeyPath parts = splitPath(path);
  if (parts.status != status::Success) return parts.status;
  RegistryNode* node = key.node;
  for (const std::string_view part : parts.parts) {
    RegistryNode* next = node->find(part);
    if (next == nullptr) {
      if (!node->canHold(part)) return status::InvalidParameter;
      if (!writable(*node)) return status::AccessDenied;
      next = &node->child(part);
      changed_ = true;
    }
    node = next;
  }
  return openSlot(*node, rights, opened);
}

RegistryStatus FolderRegistry::enumKey(RegistryKey key, std::uint32_t index, char* name,
                                       std::uint32_t& length) {
  const Opened from = resolve(key, access::EnumerateSubKeys);
  if (from.status != status::Success) return from.status;
  if (index >= from.node->keys.size()) return status::NoMoreItems;
  return handName(from.node->keys.at(index).first, name, length);
}

RegistryStatus FolderRegistry::enumValue(RegistryKey key, std::uint32_t index, char* name,
                                         std::uint32_t& length, ValueType& type, std::uint8_t* data,
                                         std::uint32_t& dataLength) {
  const Opened from = resolve(key, access::QueryValue);
  if (from.status != status::Success) return from.status;
  if (index >= from.node->values.size()) return status::NoMoreItems;
  const auto& [valueName, value] = from.node->values.at(index);
  const RegistryStatus named = handName(valueName, name, length);
  return named != status::Success ? named : hand(value, type, data, dataLength);
}

RegistryStatus FolderRegistry::query(RegistryKey key, std::string_view name, ValueType& type,
                                     std::uint8_t* data, std::uint32_t& dataLength) {
  const Opened from = resolve(key, access::QueryValue);
  if (from.status != status::Success) return from.status;
  const RegistryValue* value = from.node->values.find(StripAtNull(name));
  return value == nullptr ? status::FileNotFound : hand(*value, type, data, dataLength);
}

RegistryStatus FolderRegistry::set(RegistryKey key, std::string_view name, ValueType type,
                                   std::span<const std::uint8_t> data) {
  const Opened to = resolve(key, access::SetValue);
  if (to.status != status::Success) return to.status;
  name = StripAtNull(name);
  RegistryValue value{type, storedData({data.begin(), data.end()}, type, rules_.family->cutsTexts)};
  RegistryValue* present = to.node->values.find(name);
  if (present != nullptr && *present == value) return status::Success;
  (present != nullptr ? *present : to.node->values[name]) = std::move(value);
  changed_ = true;
  return status::Success;
}

RegistryStatus FolderRegistry::deleteValue(RegistryKey key, std::string_view name) {
  const Opened from = resolve(key, access::SetValue);
  if (from.status != status::Success) return from.status;
  if (!from.node->values.erase(StripAtNull(name))) return status::FileNotFound;
  changed_ = true;
  return status::Success;
}

RegistryStatus FolderRegistry::deleteKey(RegistryKey key, std::string_view path) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  const KeyPath parts = splitPath(path);
  if (parts.status != status::Success) return parts.status;
  RegistryNode* node = findBelow(from.node, parts);
  if (node == nullptr) return status::FileNotFound;
  if (node->parent == nullptr || holdsHive(*node) || (!rules_.family->deletesTrees && !node->keys.empty()) ||
      !treeWritable(*node)) {
    return status::AccessDenied;
  }
  for (Slot& slot : slots_) {
    if (slot.used && isWithin(slot.node, node)) slot.node = nullptr;
  }
  node->parent->keys.erase(std::string(node->name));
  changed_ = true;
  return status::Success;
}

RegistryStatus FolderRegistry::close(RegistryKey key) {
  if (Slot* slot = slotOf(key)) {
    *slot = {nullptr, 0, static_cast<std::uint16_t>((slot->generation + 1) & GenerationMask), false};
    return status::Success;
  }
  return resolve(key).status;
}

}  // namespace zub
