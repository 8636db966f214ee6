// The removal and the reading of what a trace (engine/Trace.h) names.
//
// The state is sticky on purpose and lives as long as the process: from the first key form on every call
// wipes the key that it opens, and retries all names collected so far under it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/NameList.h"
#include "engine/Trace.h"
#include "platform/Registry.h"

namespace zub {

class Engine;

class RegistryHelper : public TraceState {
 public:
  explicit RegistryHelper(Engine& engine) : engine_(engine) {}

  // The sticky state of another process: a removal does here what it would do there.
  void takeOver(const RegistryHelper& other);

  // 0, or -1 when the key could not be opened, the named value could not be deleted or the last deletion of
  // the key itself failed. RuntimeError 5 as TraceState tells.
  int DeleteTrace(const Trace& trace);
  int DeleteTrace(std::string_view Spec) { return DeleteTrace(Trace(Spec)); }
  // The value's text without its last character, which is the terminating NUL of a stored text; empty where
  // it cannot be read or has more than 1024 bytes. RuntimeError 5 as above.
  std::string TraceValue(const Trace& trace);
  std::string TraceValue(std::string_view Spec) { return TraceValue(Trace(Spec)); }

  NameList lstKey;    // every subkey name met
  NameList lstValue;  // every value name met

 private:
  static constexpr std::uint32_t MaxIndex = 16000;

  // A walk by index over the subkeys or the values of a key.
  struct Walk {
    std::uint32_t end = 0;            // the index that it came to
    bool refused = false;             // a call failed otherwise than with the end
    std::vector<std::size_t> places;  // of the names met, in their list

    std::uint32_t again() const { return refused ? 0 : end; }
    bool complete() const { return !refused && end <= MaxIndex; }
  };
  using Enumerate = RegistryStatus (RegistryHelper::*)(RegistryKey key, std::uint32_t index,
                                                       std::size_t& place);

  RegistryStatus counted(RegistryStatus result, const Trace& trace);
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, std::size_t& place);
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, std::size_t& place);
  Walk walk(RegistryKey key, Enumerate next, std::uint32_t from);
  RegistryStatus wipe(RegistryKey key, Walk keys, Walk values);

  Engine& engine_;
  // The key of the last call, and where a walk over it goes on if the next call opens it again.
  struct {
    Hive hive = Hive::None;
    std::string path;
    std::uint32_t keys = 0;
    std::uint32_t values = 0;
  } last_;
  std::array<char, 256> keyName_{};
  std::array<char, 256> valueName_{};
  std::array<std::uint8_t, 1024> data_{};
};

}  // namespace zub
