// Why an action can never work, and where it does not do what it seems to say. Empty where there is nothing to tell.
#pragma once

#include <string>
#include <string_view>

#include "engine/Trace.h"
#include "plugins/PluginFormat.h"

namespace zub {

// Of a file, whose `search` is empty, or of a search.
std::string_view whyNever(std::string_view path, const SearchEntry& search);
std::string_view remarkOnPath(std::string_view path);

// Of a trace that TraceState refuses.
std::string_view whyRefused(const Trace& trace);
std::string_view remarkOn(const Trace& trace);
// The key that a trace opens while this hive is in force.
std::string keyOf(const Trace& trace, Hive hive);

}  // namespace zub
