// One thing that a plugin removes, standard or custom: what a wash carries out and what it is told to be, side by side
// and from the same parts.
#pragma once

#include <cstdint>
#include <string>

#include "engine/Trace.h"

namespace zub {

class Engine;

struct Action {
  enum class Kind : std::uint8_t {
    File,        // the file `path`
    Files,       // the files that match the last part of `path` in the folder before it
    FilesBelow,  // the same, and those in all folders below; with the pattern "*.*" these folders, too
    Trace,       // what `trace` names
  };
  // What `path` is relative to.
  enum class Base : std::uint8_t {
    None,  // `path` is whole
    AppData,
    Windows,
    Registry,  // the folder that `trace` names
  };

  Kind kind = Kind::Trace;
  Base base = Base::None;
  std::string path;
  Trace trace;
};

// True when its file could not be removed. `appData` is the user's application data folder. RuntimeError 5 for
// a trace that TraceState refuses, and for a pattern of more than three characters without a backslash.
bool carryOut(Engine& engine, const Action& action, const std::string& appData);

struct Meaning {
  enum class Verdict : std::uint8_t {
    Plain,  // does what it seems to say
    Odd,    // does something else, or more than one would think
    Never,  // removes nothing on any PC, whatever came before
  };

  std::string text;
  Verdict verdict = Verdict::Plain;
  bool stops = false;  // carrying it out fails and ends its plugin
};

// What carrying it out removes, on this PC as it is now. `traces`: the state that the actions before it left, which this
// one changes as carrying it out would.
Meaning describe(Engine& engine, const Action& action, const std::string& appData, TraceState& traces);

}  // namespace zub
