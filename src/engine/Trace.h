// Traces: one line that names a registry key to wipe or a registry value to delete or read.
//
//   HIVE\PATH- Key*                 the key: its values, its subkeys, itself
//   HIVE\PATH+ Value`= NAME         one value of the key
//
// The hive stands in any case and is matched exactly after upper-casing; one that matches nothing leaves the
// hive of the trace before it in force. The path of a key ends at its first hyphen, that of a value at its
// first plus sign. Markers count in this case only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Registry.h"

namespace zub {

inline constexpr std::string_view KeyMarker = "- Key*";
inline constexpr std::string_view ValueMarker = "+ Value`= ";

// A trace, taken apart. What cannot be is told by the three flags, and fails when it is used.
struct Trace {
  Trace() = default;
  explicit Trace(std::string_view text);

  std::string text;          // as written
  std::optional<Hive> hive;  // none where the text's hive matches nothing
  std::string path;          // the key; empty, which is the hive itself, without a marker
  std::string valueName;     // of the value form; empty is the unnamed value
  bool keyForm = false;      // the text ends in Key*
  bool valueForm = false;    // the text holds Value`; with both, the path is that of the value form
  bool noBackslash = false;  // no hive can be split off
  bool noHyphen = false;     // the key form lacks its sign
  bool noPlus = false;       // the value form lacks its sign
};

// What stays in force of the traces of a process, for all that follow. Nothing sets it back.
struct TraceState {
  Hive hive = Hive::None;
  bool KeyMode = false;    // a key form was met: from then on every removal wipes the key that it opens
  bool ValueMode = false;  // a value form was met, read or removed

  // RuntimeError 5 for a trace without a backslash, or with a marker and no sign before it; what came before
  // the place of the failure is in force then. Reading does not look for the key form.
  void takeToRemove(const Trace& trace);
  void takeToRead(const Trace& trace);
};

}  // namespace zub
