// A registry that only pretends to change: it reads through to another one and keeps every change in memory.
// A key answers with the statuses that the registry beneath would give, whose rights are asked and never used.
// What other programs change beneath meanwhile shows in keys that were not changed here. What a hive shows of another one
// is the same here by both names, and told by the hive's. A hive that shows several keys is searched through them; what is
// in two of them is taken for the first one's alone.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/CodePage.h"
#include "platform/Registry.h"
#include "platform/pretend/NamedEntries.h"

namespace zub {

class PretendRegistry : public Registry {
 public:
  // `is9x`: a key goes with its subkeys, and a text ends at its first NUL.
  PretendRegistry(Registry& beneath, const CodePage& codePage, bool is9x);

  RegistryKey hive(Hive which) const override { return beneath_.hive(which); }
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                      RegistryKey& opened) override;
  RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                        RegistryKey& opened) override;
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override;
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           ValueType& type, std::uint8_t* data, std::uint32_t& dataLength) override;
  RegistryStatus query(RegistryKey key, std::string_view name, ValueType& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override;
  RegistryStatus set(RegistryKey key, std::string_view name, ValueType type,
                     std::span<const std::uint8_t> data) override;
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override;
  RegistryStatus deleteKey(RegistryKey key, std::string_view path) override;
  RegistryStatus close(RegistryKey key) override;
  std::vector<std::string> shownBy(Hive which) const override { return beneath_.shownBy(which); }

  // A key that is there beneath and not here, or one of its values; `key` begins with its hive's name and is spelled
  // as it is beneath. Keys come before what they hold.
  struct Removed {
    const std::string& key;
    const std::string* value;  // null for the key itself
  };
  void eachRemoved(const std::function<void(const Removed&)>& tell);
  // How often a key or value was deleted.
  std::uint64_t removals() const { return removals_; }

 private:
  struct Data {
    ValueType type{};
    std::string bytes;
  };
  // What a changed key holds, whole. A value without data has that of the registry beneath.
  struct Content {
    NamedEntries<bool> keys;
    NamedEntries<std::optional<Data>> values;
  };
  // A key that was looked at.
  struct Node {
    Node* parent = nullptr;  // null for a hive
    RegistryKey hive = 0;    // of the registry beneath
    std::string name;        // as asked for
    bool own = false;        // made here: nothing of the registry beneath shows in it
    bool gone = false;
    Node* shownBy = nullptr;           // the hive that shows this key: all that is known of it is there
    std::vector<Node*> shows = {};     // of a hive that shows several
    std::unique_ptr<Content> content;  // once it has changed; always, for an own one
    std::map<std::string, std::unique_ptr<Node>> children;  // by folded name
  };
  struct Slot {
    Node* node = nullptr;     // null where the key was deleted
    RegistryKey beneath = 0;  // 0 for an own key
    std::uint32_t rights = 0;
  };
  struct Opened {
    RegistryStatus status;
    Slot slot;
  };
  // A path taken as far as its keys were looked at: behind `node`, `rest` is only known beneath.
  struct Place {
    Node* node = nullptr;
    std::vector<std::string_view> rest;
    bool missing = false;  // the first of `rest` is known not to be there
  };

  class BeneathKey;
  using Tell = std::function<void(const Removed&)>;

  Opened resolve(RegistryKey key);
  void join(Node& hive, const std::vector<std::string>& shown);
  Place locate(Node& from, std::string_view path) const;
  RegistryStatus find(Node& from, std::string_view path, std::uint32_t rights, Slot& found);
  RegistryStatus reach(const Place& place, std::uint32_t rights, Slot& reached);
  RegistryKey keep(const Slot& slot);
  Node& child(Node& parent, std::string_view name);
  RegistryStatus makeKey(Node& parent, std::string_view name);
  RegistryStatus loadContent(Node& node);
  RegistryStatus mayDelete(Node& node);
  void markGone(Node& node);
  std::string upper(std::string_view name) const { return codePage_.upper(name); }
  static std::string pathBeneath(const Node& node);
  void tellRemoved(Node& node, const std::string& path, const Tell& tell);

  Registry& beneath_;
  const CodePage& codePage_;
  bool is9x_;
  std::vector<std::unique_ptr<Node>> hives_;
  std::unordered_map<RegistryKey, Slot> open_;
  std::uint64_t removals_ = 0;
  RegistryKey last_ = 0;  // the key that was handed out last
};

}  // namespace zub
