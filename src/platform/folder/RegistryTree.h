// The content of a registry: hives, keys and values by their names, found without regard to case, kept as
// first written, in the order of their names.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "platform/folder/CodePage1252.h"

namespace zub {

// A map by name that can also be walked by position: going on from the position asked for last costs the
// same as an iterator's step.
template <class T>
class NamedItems {
 public:
  using Map = std::map<std::string, T, FoldedLess>;

  NamedItems() = default;
  NamedItems(const NamedItems&) = delete;
  NamedItems& operator=(const NamedItems&) = delete;

  bool empty() const { return map_.empty(); }
  std::size_t size() const { return map_.size(); }
  auto begin() const { return map_.begin(); }
  auto end() const { return map_.end(); }

  T* find(std::string_view name) {
    const auto place = map_.find(name);
    return place == map_.end() ? nullptr : &place->second;
  }
  const T* find(std::string_view name) const { return const_cast<NamedItems*>(this)->find(name); }
  // The item, made where it is missing. Texts in order are added at the end without a search.
  T& operator[](std::string_view name) {
    if (!map_.empty() && compareFolded(map_.rbegin()->first, name) < 0) {
      return map_.emplace_hint(map_.end(), name, T{})->second;
    }
    const auto place = map_.find(name);
    if (place != map_.end()) return place->second;
    position_ = 0;
    place_ = map_.end();
    return map_.emplace(name, T{}).first->second;
  }
  bool erase(std::string_view name) {
    if (map_.empty()) return false;
    const auto place = map_.find(name);
    if (place == map_.end()) return false;
    if (place == place_) {
      ++place_;
    } else if (place_ != map_.end() && compareFolded(place->first, place_->first) < 0) {
      --position_;
    }
    map_.erase(place);
    return true;
  }
  // `position` is below size().
  const typename Map::value_type& at(std::size_t position) {
    if (place_ == map_.end() || position < position_) {
      position_ = 0;
      place_ = map_.begin();
    }
    for (; position_ < position; ++position_) ++place_;
    return *place_;
  }

 private:
  Map map_;
  std::size_t position_ = 0;
  typename Map::iterator place_ = map_.end();
};

struct RegistryValue {
  std::uint32_t type = 0;
  std::string data;  // as stored: a text ends in its NUL, if it was stored with one

  bool operator==(const RegistryValue&) const = default;
};

struct RegistryNode {
  static constexpr std::size_t LongestName = 255;
  static constexpr int Deepest = 512;

  std::string name;
  RegistryNode* parent = nullptr;  // null for a hive
  int depth = 0;                   // below its hive, at most Deepest
  NamedItems<std::unique_ptr<RegistryNode>> keys;
  NamedItems<RegistryValue> values;

  RegistryNode* find(std::string_view child) {
    const auto found = keys.find(child);
    return found == nullptr ? nullptr : found->get();
  }
  // A key of this name can be made here: of 1 to LongestName characters, none of them a backslash or a line
  // end, and not too deep.
  bool canHold(std::string_view child) const;
  // The key of this name below this one, made where it is missing.
  RegistryNode& child(std::string_view child);
  // From the hive's name on.
  std::string path() const;
};

class RegistryTree {
 public:
  RegistryTree();
  RegistryTree(RegistryTree&&) = default;
  RegistryTree& operator=(RegistryTree&&) = default;

  // In the order of HiveNames.
  RegistryNode& hive(std::size_t position) { return *hives_[position]; }
  // What the program finds there: the hive itself, or another key that stands for it.
  RegistryNode& shown(std::size_t position) {
    return shown_[position] == nullptr ? hive(position) : *shown_[position];
  }
  // From now on the key, which must not go, stands for the hive.
  void show(std::size_t position, RegistryNode& key) { shown_[position] = &key; }
  // Null for a text that names no hive.
  RegistryNode* hive(std::string_view name);
  // A path that begins with a hive's name; null where the key is missing.
  RegistryNode* find(std::string_view path);
  // The same, made where it is missing; null where it cannot be.
  RegistryNode* make(std::string_view path);

 private:
  std::array<std::unique_ptr<RegistryNode>, HiveNames.size()> hives_;
  std::array<RegistryNode*, HiveNames.size()> shown_{};  // null where the hive shows itself
};

}  // namespace zub
