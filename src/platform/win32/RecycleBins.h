// The folders in which this Windows keeps what was put into the recycle bin of this user.
#pragma once

#include <string>
#include <vector>

namespace zub {

// Of all fixed drives; some may be missing.
std::vector<std::string> recycleBinFolders();

}  // namespace zub
