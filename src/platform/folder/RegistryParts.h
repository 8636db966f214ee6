// Hives that are no trees of their own on a running PC: each shows a part of another one.
#pragma once

#include <string>
#include <string_view>

#include "platform/folder/RegistryTree.h"

namespace zub {

// HKEY_CURRENT_USER shows this branch of HKEY_USERS; with no user it is the tree that the text has for it. The
// classes and the current configuration are shown from HKEY_LOCAL_MACHINE where the text has nothing of their own.
// PcError where there is no such branch.
void showParts(RegistryTree& tree, std::string_view user);

// The path, from its hive on, of what a path leads to.
std::string shownPath(RegistryTree& tree, std::string_view path);

}  // namespace zub
