// changes.reg of a PC in a folder: what became of the export that its registry was.
#pragma once

#include <string_view>

#include "platform/folder/FolderPc.h"

namespace zub {

inline constexpr const char* ChangesName = "changes.reg";

// Writes the text, against the export that was kept and in its form; of the program's own settings and Run entries only
// with them asked for, and only what lies at or below a path from a hive on, where that is not empty. False, with
// nothing written, where no export was kept. PcError where a text cannot be read or written.
bool saveChanges(FolderPc& pc, bool withSettings, std::string_view below);

}  // namespace zub
