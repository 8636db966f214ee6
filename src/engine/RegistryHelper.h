// Traces: one line that names a registry key to wipe or a registry value to delete or read.
//
//   HIVE\PATH- Key*                 the key: its values, its subkeys, itself
//   HIVE\PATH+ Value`= NAME         one value of the key
//
// The hive stands in any case and is matched exactly after upper-casing; one that matches nothing leaves the
// hive of the trace before it in force. The path of a key ends at the first hyphen.
//
// The state is sticky on purpose and lives as long as the process: from the first key form on every call
// wipes the key that it opens, and retries all names collected so far under it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/Registry.h"

namespace zub {

class Engine;

class RegistryHelper {
 public:
  explicit RegistryHelper(Engine& engine) : engine_(engine) {}

  // 0, or -1 when the key could not be opened, the named value could not be deleted or the last deletion of
  // the key itself failed. RuntimeError 5 for a trace without a backslash, or with a marker and no
  // sign before it.
  int DeleteTrace(const std::string& Spec);
  // The value's text without its last character, which is the terminating NUL of a stored text; empty where
  // it cannot be read or has more than 1024 bytes. RuntimeError 5 as above.
  std::string TraceValue(const std::string& Spec);

  // The sticky state, for looking at.
  bool KeyMode = false;
  bool ValueMode = false;
  std::vector<std::string> lstKey;    // every subkey name met
  std::vector<std::string> lstValue;  // every value name met

 private:
  static constexpr std::uint32_t MaxIndex = 16000;

  struct Target {
    std::string path;
    std::string valueName;
    bool namesValue = false;
  };
  Target parse(const std::string& Spec, bool forRemoval);
  RegistryStatus counted(RegistryStatus result);
  void collectNames(RegistryKey key);
  int wipe(RegistryKey key);

  Engine& engine_;
  Hive hive_ = Hive::None;
  std::array<char, 256> keyName_{};
  std::array<char, 256> valueName_{};
  std::array<std::uint8_t, 1024> data_{};
};

}  // namespace zub
