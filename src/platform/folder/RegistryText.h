// The text form of a registry that the Windows tools export and import.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/folder/RegistryTree.h"

namespace zub {

// How a text is written.
struct RegistryForm {
  enum class Letters : std::uint8_t { CodePage, Utf8, Utf16 };
  bool isNew = false;  // "Windows Registry Editor Version 5.00", else "REGEDIT4"
  Letters letters = Letters::CodePage;
  bool marked = false;  // UTF-8 with its mark; UTF-16 has it always
};
RegistryForm formOf(std::string_view bytes);

// Reads a text of the form "REGEDIT4" or "Windows Registry Editor Version 5.00", or several of them joined: 8-bit in the
// PC's code page, or UTF-8 or UTF-16LE with the mark of its order at the start, or UTF-8 without a mark where the whole
// text is valid UTF-8 with characters beyond ASCII; lines end in LF or CR LF. A text that is cut off or broken throws
// PcError with `file` and the line. Lines that delete a key or a value take away what stands above them.
RegistryTree readRegistryText(std::string_view bytes, const std::string& file);
// The same on top of what the tree holds. `below` is where the keys of a text lie that name no hive ("\Software");
// empty for one whose keys do.
void readRegistryInto(RegistryTree& tree, std::string_view bytes, const std::string& file,
                      std::string_view below);

// "REGEDIT4", 8-bit, CR LF, keys and values in the order of their names: the same text for the same content. Its first
// comment tells the program's own texts from the exports of others.
std::string writeRegistryText(RegistryTree& tree);
bool isOwnRegistryText(std::string_view bytes);
// As an export of that form: without the comment and without hives that are empty.
std::string writeRegistryText(RegistryTree& tree, RegistryForm form);

// Whether the program's own text would have at most this many bytes.
bool canBeWritten(RegistryTree& tree, std::uint64_t mostBytes);

}  // namespace zub
