// The texts of a PC folder: read whole, and replaced whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/folder/HostDir.h"

namespace zub {

// Nothing where there is no such file. PcError where it cannot be read, is a link or is larger than 256 MiB.
std::optional<std::string> readHostText(HostDir& folder, const std::string& name);

// Writes the text beside the file (under its name and ".new") and puts it in the file's place once it has
// reached the disk, so that at every moment the file is the old one or the new one. PcError where that fails;
// the file is then the old one.
void replaceHostText(HostDir& folder, const std::string& name, std::string_view text);
// The same for any file, under another name beside; a file of that name is lost.
HostError replaceHostFile(HostDir& folder, const std::string& name, std::string_view bytes,
                          const std::string& beside);

}  // namespace zub
