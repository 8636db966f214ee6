#include "platform/pretend/PretendRegistry.h"

#include <algorithm>

#include "base/Text.h"
#include "platform/StoredData.h"

namespace zub {
namespace {

constexpr std::size_t LongestKeyName = 255;
constexpr std::uint32_t LongestValueName = 16384;  // with its NUL

// All that `next` tells by index, until it fails.
template <class Next>
std::vector<std::string> allNames(std::uint32_t room, Next next) {
  std::vector<std::string> names;
  std::string buffer(room, '\0');
  for (std::uint32_t index = 0;; ++index) {
    std::uint32_t length = room;
    if (next(index, buffer.data(), length) != status::Success) return names;
    names.emplace_back(buffer, 0, length);
  }
}

}  // namespace

// A key of the registry beneath, closed with the scope.
class PretendRegistry::BeneathKey {
 public:
  BeneathKey(Registry& registry, RegistryKey parent, std::string_view path, std::uint32_t rights)
      : registry_(registry), opened_(registry.open(parent, path, rights, key_)) {}
  BeneathKey(const BeneathKey&) = delete;
  BeneathKey& operator=(const BeneathKey&) = delete;
  ~BeneathKey() {
    if (opened_ == status::Success) registry_.close(key_);
  }

  RegistryStatus opened() const { return opened_; }
  RegistryKey get() const { return key_; }
  RegistryKey release() {
    opened_ = status::InvalidHandle;
    return key_;
  }
  std::vector<std::string> keys() {
    return allNames(LongestKeyName + 1, [this](std::uint32_t index, char* name, std::uint32_t& length) {
      return registry_.enumKey(key_, index, name, length);
    });
  }
  std::vector<std::string> values() {
    return allNames(LongestValueName, [this](std::uint32_t index, char* name, std::uint32_t& length) {
      ValueType type{};
      std::uint32_t dataLength = 0;
      return registry_.enumValue(key_, index, name, length, type, nullptr, dataLength);
    });
  }

 private:
  Registry& registry_;
  RegistryKey key_ = 0;
  RegistryStatus opened_;
};

PretendRegistry::PretendRegistry(Registry& beneath, const CodePage& codePage, bool is9x)
    : beneath_(beneath), codePage_(codePage), is9x_(is9x) {
  for (const HiveName& row : HiveNames) {
    auto& node = hives_.emplace_back(std::make_unique<Node>());
    node->hive = beneath.hive(row.hive);
    node->name = row.name;
  }
}

std::string PretendRegistry::pathBeneath(const Node& node) {
  if (node.parent == nullptr) return {};
  const std::string above = pathBeneath(*node.parent);
  return above.empty() ? node.name : above + '\\' + node.name;
}

PretendRegistry::Opened PretendRegistry::resolve(RegistryKey key) {
  for (const auto& node : hives_) {
    if (key != 0 && node->hive == key) return {status::Success, {node.get(), key, access::All}};
  }
  const auto place = open_.find(key);
  if (place == open_.end()) return {status::InvalidHandle, {}};
  return {place->second.node == nullptr ? status::KeyDeleted : status::Success, place->second};
}

PretendRegistry::Place PretendRegistry::locate(Node& from, std::string_view path) const {
  Place place{&from, {}};
  path = StripAtNull(path);
  if (path.ends_with('\\')) path.remove_suffix(1);
  while (!path.empty()) {
    const auto end = std::min(path.find('\\'), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (place.rest.empty()) {
      const auto known = place.node->children.find(upper(part));
      if (known != place.node->children.end() && !known->second->gone) {
        place.node = known->second.get();
        continue;
      }
      place.missing = known != place.node->children.end() || place.node->own;
    }
    place.rest.push_back(part);
  }
  return place;
}

PretendRegistry::Node& PretendRegistry::child(Node& parent, std::string_view name) {
  auto& node = parent.children[upper(name)];
  if (!node) {
    node = std::make_unique<Node>();
    node->parent = &parent;
    node->hive = parent.hive;
    node->name = name;
  }
  return *node;
}

// Finds the key, and opens it beneath where it is not an own one.
RegistryStatus PretendRegistry::reach(const Place& place, std::uint32_t rights, Slot& reached) {
  for (const std::string_view part : place.rest) {
    if (part.empty()) return status::BadPath;
  }
  if (place.missing) return status::FileNotFound;
  reached = {place.node, 0, rights};
  if (place.node->own) return status::Success;
  std::string path = pathBeneath(*place.node);
  for (const std::string_view part : place.rest) path.append(path.empty() ? "" : "\\").append(part);
  BeneathKey key(beneath_, place.node->hive, path, rights);
  if (key.opened() != status::Success) return key.opened();
  for (const std::string_view part : place.rest) reached.node = &child(*reached.node, part);
  reached.beneath = key.release();
  return status::Success;
}

RegistryKey PretendRegistry::keep(const Slot& slot) {
  open_[++last_] = slot;
  return last_;
}

RegistryStatus PretendRegistry::open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                     RegistryKey& opened) {
  const Opened from = resolve(parent);
  if (from.status != status::Success) return from.status;
  Slot slot;
  const RegistryStatus result = reach(locate(*from.slot.node, path), rights, slot);
  if (result == status::Success) opened = keep(slot);
  return result;
}

RegistryStatus PretendRegistry::create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                       RegistryKey& opened) {
  const Opened from = resolve(parent);
  if (from.status != status::Success) return from.status;
  Slot slot;
  RegistryStatus result = status::FileNotFound;
  while ((result = reach(locate(*from.slot.node, path), rights, slot)) == status::FileNotFound) {
    // The first key on the way that is not there is made, then the next one.
    Place place = locate(*from.slot.node, path);
    while (!place.missing) {
      Slot there;
      Place next{place.node, {place.rest.front()}};
      const RegistryStatus present = reach(next, access::Read, there);
      if (present == status::Success) {
        if (there.beneath != 0) beneath_.close(there.beneath);
        place = locate(*from.slot.node, path);
      } else if (present == status::FileNotFound) {
        place.missing = true;
      } else {
        return present;
      }
    }
    const RegistryStatus made = makeKey(*place.node, place.rest.front());
    if (made != status::Success) return made;
  }
  if (result == status::Success) opened = keep(slot);
  return result;
}

RegistryStatus PretendRegistry::makeKey(Node& parent, std::string_view name) {
  if (name.size() > LongestKeyName) return status::InvalidParameter;
  if (!parent.own) {
    const BeneathKey key(beneath_, parent.hive, pathBeneath(parent), access::CreateSubKey);
    if (key.opened() != status::Success) return key.opened();
  }
  const RegistryStatus loaded = loadContent(parent);
  if (loaded != status::Success) return loaded;
  parent.content->keys.make(upper(name), name);
  Node& node = child(parent, name);
  node.gone = false;
  node.own = true;
  node.content = std::make_unique<Content>();
  return status::Success;
}

// What the key holds, taken over from beneath before its first change.
RegistryStatus PretendRegistry::loadContent(Node& node) {
  if (node.content) return status::Success;
  BeneathKey key(beneath_, node.hive, pathBeneath(node), access::Read);
  if (key.opened() != status::Success) return key.opened();
  auto content = std::make_unique<Content>();
  for (const std::string& name : key.keys()) content->keys.make(upper(name), name);
  for (const std::string& name : key.values()) content->values.make(upper(name), name);
  node.content = std::move(content);
  return status::Success;
}

RegistryStatus PretendRegistry::enumKey(RegistryKey key, std::uint32_t index, char* name,
                                        std::uint32_t& length) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  Content* content = from.slot.node->content.get();
  if (content == nullptr) return beneath_.enumKey(from.slot.beneath, index, name, length);
  if ((from.slot.rights & access::EnumerateSubKeys) == 0) return status::AccessDenied;
  if (index >= content->keys.size()) return status::NoMoreItems;
  return handName(content->keys.at(index).name, name, length);
}

RegistryStatus PretendRegistry::enumValue(RegistryKey key, std::uint32_t index, char* name,
                                          std::uint32_t& length, ValueType& type, std::uint8_t* data,
                                          std::uint32_t& dataLength) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  Content* content = from.slot.node->content.get();
  if (content == nullptr) {
    return beneath_.enumValue(from.slot.beneath, index, name, length, type, data, dataLength);
  }
  if ((from.slot.rights & access::QueryValue) == 0) return status::AccessDenied;
  if (index >= content->values.size()) return status::NoMoreItems;
  const std::string& valueName = content->values.at(index).name;
  const RegistryStatus named = handName(valueName, name, length);
  return named != status::Success ? named : query(key, valueName, type, data, dataLength);
}

RegistryStatus PretendRegistry::query(RegistryKey key, std::string_view name, ValueType& type,
                                      std::uint8_t* data, std::uint32_t& dataLength) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  Content* content = from.slot.node->content.get();
  if (content != nullptr) {
    if ((from.slot.rights & access::QueryValue) == 0) return status::AccessDenied;
    const std::optional<Data>* value = content->values.find(upper(StripAtNull(name)));
    if (value == nullptr) return status::FileNotFound;
    if (value->has_value()) {
      type = (*value)->type;
      return handData((*value)->bytes, data, dataLength);
    }
  }
  return beneath_.query(from.slot.beneath, name, type, data, dataLength);
}

RegistryStatus PretendRegistry::set(RegistryKey key, std::string_view name, ValueType type,
                                    std::span<const std::uint8_t> data) {
  const Opened to = resolve(key);
  if (to.status != status::Success) return to.status;
  if ((to.slot.rights & access::SetValue) == 0) return status::AccessDenied;
  const RegistryStatus loaded = loadContent(*to.slot.node);
  if (loaded != status::Success) return loaded;
  name = StripAtNull(name);
  to.slot.node->content->values.make(upper(name), name) =
      Data{type, storedData({data.begin(), data.end()}, type, is9x_)};
  return status::Success;
}

RegistryStatus PretendRegistry::deleteValue(RegistryKey key, std::string_view name) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  if ((from.slot.rights & access::SetValue) == 0) return status::AccessDenied;
  const RegistryStatus loaded = loadContent(*from.slot.node);
  if (loaded != status::Success) return loaded;
  if (!from.slot.node->content->values.erase(upper(StripAtNull(name)))) return status::FileNotFound;
  ++removals_;
  return status::Success;
}

RegistryStatus PretendRegistry::deleteKey(RegistryKey key, std::string_view path) {
  const Opened from = resolve(key);
  if (from.status != status::Success) return from.status;
  Slot target;
  const RegistryStatus reached = reach(locate(*from.slot.node, path), access::Read, target);
  if (target.beneath != 0) beneath_.close(target.beneath);
  if (reached != status::Success) return reached;
  Node& node = *target.node;
  if (node.parent == nullptr) return status::AccessDenied;
  const RegistryStatus allowed = mayDelete(node);
  if (allowed != status::Success) return allowed;
  const RegistryStatus loaded = loadContent(*node.parent);
  if (loaded != status::Success) return loaded;
  node.parent->content->keys.erase(upper(node.name));
  markGone(node);
  ++removals_;
  for (auto& [handle, slot] : open_) {
    if (slot.node != nullptr && slot.node->gone) slot.node = nullptr;
  }
  return status::Success;
}

// Whether the key could go, with all below it where it goes with its subkeys.
RegistryStatus PretendRegistry::mayDelete(Node& node) {
  if (!node.own) {
    const BeneathKey key(beneath_, node.hive, pathBeneath(node), access::Delete);
    if (key.opened() != status::Success) return key.opened();
  }
  const RegistryStatus loaded = loadContent(node);
  if (loaded != status::Success) return loaded;
  NamedEntries<bool>& keys = node.content->keys;
  if (!is9x_ && keys.size() > 0) return status::AccessDenied;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const RegistryStatus below = mayDelete(child(node, keys.at(i).name));
    if (below != status::Success) return below;
  }
  return status::Success;
}

void PretendRegistry::markGone(Node& node) {
  node.gone = true;
  for (const auto& [name, below] : node.children) markGone(*below);
}

RegistryStatus PretendRegistry::close(RegistryKey key) {
  const auto place = open_.find(key);
  if (place == open_.end()) return resolve(key).status;
  if (place->second.beneath != 0) beneath_.close(place->second.beneath);
  open_.erase(place);
  return status::Success;
}

void PretendRegistry::eachRemoved(const Tell& tell) {
  for (const auto& node : hives_) tellRemoved(*node, node->name, tell);
}

void PretendRegistry::tellRemoved(Node& node, const std::string& path, const Tell& tell) {
  const bool changed = node.content != nullptr || node.gone;
  if (!changed && node.children.empty()) return;
  BeneathKey key(beneath_, node.hive, pathBeneath(node), access::Read);
  if (key.opened() != status::Success) return;
  if (node.gone) tell({path, nullptr});
  if (changed) {
    for (const std::string& value : key.values()) {
      if (node.gone || node.content->values.find(upper(value)) == nullptr) tell({path, &value});
    }
  }
  for (const std::string& name : key.keys()) {
    // Below a key that is gone, or was made anew, all keys count; below another one those that were looked at.
    const bool known = node.children.contains(upper(name));
    if (!known && !node.gone && !node.own) continue;
    Node& below = child(node, name);
    if (!known) below.gone = true;
    tellRemoved(below, path + '\\' + name, tell);
  }
}

}  // namespace zub
