// The registry as its nine calls, each with the status that the system gives it: the logic is told in them. Names and
// paths are ANSI text, found without regard to case and kept as written. A path is relative to an open key or a hive,
// its parts joined by one backslash, without one at its ends; the empty path is the key itself.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zub {

// An open key or one of the hives. 0 is no key: every call on it answers InvalidHandle.
using RegistryKey = std::uintptr_t;

enum class Hive : std::uint32_t {
  None = 0,
  ClassesRoot = 0x80000000,
  CurrentUser = 0x80000001,
  LocalMachine = 0x80000002,
  Users = 0x80000003,
  PerformanceData = 0x80000004,
  CurrentConfig = 0x80000005,
  DynData = 0x80000006,
};

// The texts that name a hive.
struct HiveName {
  Hive hive;
  std::string_view name;      // as the system writes it
  std::string_view inTraces;  // the one spelling, in capitals, that the hive of a trace is compared with
  std::string_view inEditor;  // what the plugin editor offers and writes
};
// Traces know the classes by a misspelt name only, and so the right one matches nothing; recipes rely on it.
inline constexpr std::array<HiveName, 7> HiveNames{{
    {Hive::ClassesRoot, "HKEY_CLASSES_ROOT", "HKEY_CLASSSES_ROOT", "HKey_Classes_Root"},
    {Hive::CurrentConfig, "HKEY_CURRENT_CONFIG", "HKEY_CURRENT_CONFIG", "HKey_Current_Config"},
    {Hive::CurrentUser, "HKEY_CURRENT_USER", "HKEY_CURRENT_USER", "HKey_Current_User"},
    {Hive::DynData, "HKEY_DYN_DATA", "HKEY_DYN_DATA", "HKey_Dyn_Data"},
    {Hive::LocalMachine, "HKEY_LOCAL_MACHINE", "HKEY_LOCAL_MACHINE", "HKey_Local_Machine"},
    {Hive::PerformanceData, "HKEY_PERFORMANCE_DATA", "HKEY_PERFORMANCE_DATA", "HKey_Performance_Data"},
    {Hive::Users, "HKEY_USERS", "HKEY_USERS", "HKey_Users"},
}};

using RegistryStatus = std::int32_t;

namespace status {
inline constexpr RegistryStatus Success = 0;
inline constexpr RegistryStatus FileNotFound = 2;  // no such key or value
inline constexpr RegistryStatus AccessDenied = 5;
inline constexpr RegistryStatus InvalidHandle = 6;
inline constexpr RegistryStatus InvalidParameter = 87;  // a key that cannot be
inline constexpr RegistryStatus BadPath = 161;          // an empty part in the path
inline constexpr RegistryStatus MoreData = 234;         // the buffer is too small
inline constexpr RegistryStatus NoMoreItems = 259;
inline constexpr RegistryStatus KeyDeleted = 1018;  // the open key was deleted meanwhile
}  // namespace status

namespace access {
inline constexpr std::uint32_t QueryValue = 1;
inline constexpr std::uint32_t SetValue = 2;
inline constexpr std::uint32_t CreateSubKey = 4;
inline constexpr std::uint32_t EnumerateSubKeys = 8;
inline constexpr std::uint32_t Delete = 0x10000;
inline constexpr std::uint32_t Write = 0x20006;
inline constexpr std::uint32_t All = 0x3F;  // query, set, create, enumerate, notify, link
inline constexpr std::uint32_t Read = 131135;
}  // namespace access

// A value may have any other type too.
enum class ValueType : std::uint32_t {
  None = 0,
  Text = 1,
  ExpandText = 2,
  Binary = 3,
  Number = 4,
  SeveralTexts = 7
};

inline bool isText(ValueType type) {
  return type == ValueType::Text || type == ValueType::ExpandText || type == ValueType::SeveralTexts;
}

class Registry {
 public:
  virtual ~Registry() = default;

  virtual RegistryKey hive(Hive which) const = 0;

  // Opens an existing key. `opened` is set on Success only.
  virtual RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                              RegistryKey& opened) = 0;
  // Opens the key and makes it, with all keys on the way, where it is missing.
  virtual RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                RegistryKey& opened) = 0;
  // The name of the index-th subkey. `length`: in, the room in `name` in characters with the NUL; out, the
  // length without it. The name ends in a NUL. MoreData leaves `name` as it was.
  virtual RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) = 0;
  // The name, type and data of the index-th value; `length` as above, `dataLength` in bytes. The unnamed
  // value has the empty name. With MoreData because of the data the name may or may not have been written.
  virtual RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                                   ValueType& type, std::uint8_t* data, std::uint32_t& dataLength) = 0;
  // The data of one value as stored, with no NUL added. MoreData sets `dataLength` to the length needed. A text that
  // the code page does not hold exactly is told by stand-ins (platform/ToldName.h), and set() takes it so.
  virtual RegistryStatus query(RegistryKey key, std::string_view name, ValueType& type, std::uint8_t* data,
                               std::uint32_t& dataLength) = 0;
  // Stores the bytes as they stand, but texts as the system does, to which they are handed over with a NUL
  // behind them: the NT family stores that NUL too where a text has bytes and does not end in one; the 9x
  // family stores a text of the type Text up to its first NUL, and that NUL.
  virtual RegistryStatus set(RegistryKey key, std::string_view name, ValueType type,
                             std::span<const std::uint8_t> data) = 0;
  virtual RegistryStatus deleteValue(RegistryKey key, std::string_view name) = 0;
  // Deletes a subkey; the empty path deletes the open key itself. A key that has subkeys goes with them on
  // the 9x family and is refused with AccessDenied on the NT family.
  virtual RegistryStatus deleteKey(RegistryKey key, std::string_view path) = 0;
  virtual RegistryStatus close(RegistryKey key) = 0;

  // Of a hive that is no tree of its own: the keys that it shows, by their paths from their own hive's name on. What is
  // in several counts in the first.
  virtual std::vector<std::string> shownBy(Hive which) const = 0;
};

// Closes a key when the scope ends.
class OpenKey {
 public:
  explicit OpenKey(Registry& registry) : registry_(registry) {}
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (key_ != 0) registry_.close(key_);
  }

  RegistryStatus open(Hive hive, std::string_view path, std::uint32_t rights) {
    return registry_.open(registry_.hive(hive), path, rights, key_);
  }
  RegistryStatus create(Hive hive, std::string_view path, std::uint32_t rights) {
    return registry_.create(registry_.hive(hive), path, rights, key_);
  }
  RegistryKey get() const { return key_; }

 private:
  Registry& registry_;
  RegistryKey key_ = 0;
};

}  // namespace zub
