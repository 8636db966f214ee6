// The user's own folders as the shell keeps them in the registry.
#pragma once

#include <string>
#include <string_view>

namespace zub {

class Engine;

// The folder that the shell knows by this name, such as "Recent" or "AppData", as it stands in the registry:
// without a backslash at its end as a rule. Empty where it cannot be read.
std::string shellFolder(Engine& engine, std::string_view name);
// The trace that it reads.
std::string shellFolderTrace(std::string_view name);

}  // namespace zub
