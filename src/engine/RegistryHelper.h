// The removal and the reading of what a trace (engine/Trace.h) names.
//
// The state is sticky on purpose and lives as long as the process: from the first key form on every call
// wipes the key that it opens, and retries all names collected so far under it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/Trace.h"
#include "platform/Registry.h"

namespace zub {

class Engine;

class RegistryHelper : public TraceState {
 public:
  explicit RegistryHelper(Engine& engine) : engine_(engine) {}

  // 0, or -1 when the key could not be opened, the named value could not be deleted or the last deletion of
  // the key itself failed. RuntimeError 5 as TraceState tells.
  int DeleteTrace(const Trace& trace);
  int DeleteTrace(std::string_view Spec) { return DeleteTrace(Trace(Spec)); }
  // The value's text without its last character, which is the terminating NUL of a stored text; empty where
  // it cannot be read or has more than 1024 bytes. RuntimeError 5 as above.
  std::string TraceValue(const Trace& trace);
  std::string TraceValue(std::string_view Spec) { return TraceValue(Trace(Spec)); }

  std::vector<std::string> lstKey;    // every subkey name met
  std::vector<std::string> lstValue;  // every value name met

 private:
  static constexpr std::uint32_t MaxIndex = 16000;

  RegistryStatus counted(RegistryStatus result);
  void collectNames(RegistryKey key);
  int wipe(RegistryKey key);

  Engine& engine_;
  std::array<char, 256> keyName_{};
  std::array<char, 256> valueName_{};
  std::array<std::uint8_t, 1024> data_{};
};

}  // namespace zub
