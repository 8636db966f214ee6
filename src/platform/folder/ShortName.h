// The 8.3 names of a folder's entries. They are kept on no disk: each is a function of all the names in the
// folder, so it may change when a neighbour goes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zub {

// Up to eight characters and, behind a dot, up to three, none of them illegal in the old form. Case may vary.
bool isShortName(std::string_view name);

// For each name its short one: the name itself where it is short already, "LONGNA~1.EXT" where not.
std::vector<std::string> shortNames(const std::vector<std::string>& names);

}  // namespace zub
