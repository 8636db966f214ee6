// The content of a PC in a folder as sorted text, and what two such texts differ in.
#pragma once

#include <string>
#include <string_view>

#include "platform/folder/FolderPc.h"

namespace zub {

std::string snapshotOf(FolderPc& pc);
std::string diffOf(std::string_view before, std::string_view after);

}  // namespace zub
