// The run of one custom plugin in a wash: its file entries, then its registry entries.
#pragma once

#include <string>

namespace zub {

class Engine;
class Plugins;

// Reads the plugin's files anew. Whatever fails ends this plugin's run, silently and before it is counted;
// what was done stays done. So does a list of registry entries that holds "No entries." in this mixed case:
// only the file entries are read without regard to case.
void RunCustomPlugin(Engine& engine, const Plugins& plugins, const std::string& name);

}  // namespace zub
