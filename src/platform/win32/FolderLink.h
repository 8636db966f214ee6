// Links as the program is told them, and links to folders, which have calls of their own.
#pragma once

#include <cstdint>

#include "platform/host/win32/ReparsePoint.h"
#include "platform/win32/SystemPath.h"

namespace zub {

// The attribute bits as the program is told them.
std::uint32_t toldAttributes(DWORD attributes, bool link);

// Opens a link to a folder itself. INVALID_HANDLE_VALUE with the last error "access denied" for anything else,
// and where the system opens what the link leads to instead.
HANDLE openFolderLink(const SystemPath& path, DWORD access, DWORD sharing);

// Removes the link and nothing else.
bool removeFolderLink(const SystemPath& path);

}  // namespace zub
