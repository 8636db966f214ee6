// Links: reparse points that stand for another name, such as junctions. Other reparse points (deduplicated files,
// files in a cloud) are the files and folders that they look like.
#pragma once

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

// `tag` is the reparse point's; one that the system does not tell (0) counts as a link's.
bool isLink(DWORD attributes, DWORD tag);
// The tag of an open reparse point; 0 for anything else.
DWORD tagOf(HANDLE file, DWORD attributes);

}  // namespace zub
