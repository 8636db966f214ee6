// Makes a PC in a folder.
#pragma once

#include <memory>
#include <string>

#include "platform/host/HostDir.h"

namespace zub {

// The folder, made where it is missing (not the folders above it), empty, and taken for this process. PcError where it
// cannot be made or holds anything.
std::unique_ptr<HostDir> openEmptyFolder(const std::string& folder);

// Makes a valid PC of the 9x family that nobody has worked on: drive C: with the folders of a fresh Windows, and a
// registry that tells where those of the user are. PcError as above.
void createPc(const std::string& folder);

}  // namespace zub
