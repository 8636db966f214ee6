// The registry calls on a tree of keys in memory. A handle of a closed key answers InvalidHandle, a handle of
// a key that was deleted meanwhile KeyDeleted.
#pragma once

#include <string>
#include <vector>

#include "platform/Registry.h"
#include "platform/folder/Family.h"
#include "platform/folder/RegistryTree.h"

namespace zub {

namespace status {
inline constexpr RegistryStatus TooManyOpen = 4;
}  // namespace status

class FolderRegistry : public Registry {
 public:
  struct Rules {
    const Family* family;
    std::vector<std::string> noRights;  // paths of keys that, with all below, can only be read
  };

  FolderRegistry(RegistryTree& tree, const Rules& rules) : tree_(tree), rules_(rules) {}

  RegistryKey hive(Hive which) const override { return static_cast<std::uint32_t>(which); }
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

  // The path of an open key from its hive's name on; empty where the handle is not one.
  std::string pathOf(RegistryKey key);

  // Something was changed since the last `changed(false)`.
  bool changed() const { return changed_; }
  void changed(bool now) { changed_ = now; }

 private:
  struct Slot {
    RegistryNode* node = nullptr;  // null where the key was deleted
    std::uint32_t rights = 0;
    std::uint16_t generation = 0;
    bool used = false;
  };
  struct Opened {
    RegistryStatus status;
    RegistryNode* node;
  };

  // AccessDenied where the key was opened without these rights.
  Opened resolve(RegistryKey key, std::uint32_t rights = 0);
  Slot* slotOf(RegistryKey key);
  RegistryStatus openSlot(RegistryNode& node, std::uint32_t rights, RegistryKey& opened);
  bool holdsHive(const RegistryNode& node) const;
  bool writable(const RegistryNode& node) const;
  bool treeWritable(const RegistryNode& node) const;

  RegistryTree& tree_;
  const Rules& rules_;
  std::vector<Slot> slots_;
  bool changed_ = false;
};

}  // namespace zub
