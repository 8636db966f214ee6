// The content of a PC in a folder as sorted text, and what two such texts differ in.
#pragma once

#include <string>
#include <string_view>

#include "platform/folder/FolderPc.h"

namespace zub {

// The bytes, those that are no printing characters as %00.
std::string printable(std::string_view bytes);

std::string snapshotOf(FolderPc& pc);
std::string diffOf(std::string_view before, std::string_view after);

}  // namespace zub
