// Reparse points that are folders.
#pragma once

#include "platform/win32/WindowsHeader.h"

namespace zub {

// Opens the point itself. INVALID_HANDLE_VALUE with the last error "access denied" for anything else, and
// where the system opens what the point leads to instead.
HANDLE openFolderLink(const char* path, DWORD access, DWORD sharing);

// Removes the point and nothing else.
bool removeFolderLink(const char* path);

}  // namespace zub
