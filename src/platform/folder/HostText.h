// The texts of a PC folder: read whole, and replaced whole.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/host/HostDir.h"

namespace zub {

// What a text can have, on the disk and when it is saved.
inline constexpr std::uint64_t MostTextBytes = std::uint64_t{1} << 29;

// Nothing where there is no such file. PcError where it cannot be read, is a link or is too large.
std::optional<std::string> readHostText(HostDir& folder, const std::string& name);

// The same for a path of the host, in UTF-8.
std::optional<std::string> readHostTextAt(const std::string& path);

// Writes the bytes beside the file, under a name of this process ("registry.reg.1234.new"), and puts them in the
// file's place once they have reached the disk, so that at every moment the file is the old one or the new
// one, and none stays beside it, of processes killed earlier neither. Where that fails the file is the old one, or the
// new one that may not last.
HostError replaceHostFile(HostDir& folder, const std::string& name, std::string_view bytes);
// The same for a text. PcError where it fails or the text is too large.
void replaceHostText(HostDir& folder, const std::string& name, std::string_view text);

// Removes what processes that were killed while they replaced this file have left beside it. For those who have
// taken the PC's folder.
void removeLeftBeside(HostDir& folder, const std::string& name);

}  // namespace zub
