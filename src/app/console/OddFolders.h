// Folders that the shell's own list in the registry names in a way that a wash takes for another folder, or for
// none. The wash does as it always did; whoever runs it is told.
#pragma once

#include <string>
#include <vector>

#include "platform/Registry.h"

namespace zub {

// A line for each such folder among those that a wash looks up.
std::vector<std::string> oddFolders(Registry& registry);

}  // namespace zub
