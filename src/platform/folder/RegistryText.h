// The text form of a registry that the Windows tools export and import.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/folder/RegistryTree.h"

namespace zub {

// Reads a text of the form "REGEDIT4" or "Windows Registry Editor Version 5.00": 8-bit in the PC's code page,
// or UTF-8 or UTF-16LE with the mark of its order at the start; lines end in LF or CR LF. A text that is cut
// off or broken throws PcError with `file` and the line. Lines that delete a key or a value take away what
// stands above them.
RegistryTree readRegistryText(std::string_view bytes, const std::string& file);

// Always "REGEDIT4", 8-bit, CR LF, keys and values in the order of their names: the same text for the same content.
std::string writeRegistryText(RegistryTree& tree);

// Whether the text would have at most this many bytes.
bool canBeWritten(RegistryTree& tree, std::uint64_t mostBytes);

}  // namespace zub
