// The content of folders.
#pragma once

#include <string>
#include <vector>

#include "platform/Files.h"

namespace zub {

// Removes all that the folders hold, and leaves the folders; one that is missing is empty. False where something stays.
bool emptyFolders(Files& files, const std::vector<std::string>& folders);

}  // namespace zub
