// Links: reparse points that stand for another name, such as junctions. Other reparse points (deduplicated files,
// files in a cloud) are the files and folders that they look like.
#pragma once

#include <cstdint>

#include "platform/win32/SystemPath.h"
#include "platform/win32/WindowsHeader.h"

namespace zub {

// `tag` is the reparse point's; one that the system does not tell (0) counts as a link's.
bool isLink(DWORD attributes, DWORD tag);
// The attribute bits as the program is told them.
std::uint32_t toldAttributes(DWORD attributes, bool link);
// The tag of an open reparse point; 0 for anything else.
DWORD tagOf(HANDLE file, DWORD attributes);

// Opens a link to a folder itself. INVALID_HANDLE_VALUE with the last error "access denied" for anything else,
// and where the system opens what the link leads to instead.
HANDLE openFolderLink(const SystemPath& path, DWORD access, DWORD sharing);

// Removes the link and nothing else.
bool removeFolderLink(const SystemPath& path);

}  // namespace zub
