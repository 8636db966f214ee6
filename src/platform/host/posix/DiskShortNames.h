// The 8.3 names that a disk of Windows keeps, as far as this system's drivers tell them.
#pragma once

#include <vector>

#include "platform/host/HostDir.h"

namespace zub {

// Of the entries of an open folder; none on a disk that keeps or tells none. -1, with errno set, where it fails.
int diskShortNames(int folder, std::vector<ShortName>& names);

}  // namespace zub
