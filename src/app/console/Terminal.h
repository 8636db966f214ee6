// The terminal that the program was started on. Text is UTF-8: on a console of Windows it is written wide, into a
// pipe or file as it is.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zub::terminal {

enum class Stream : std::uint8_t { Output, Errors };

void write(Stream stream, std::string_view text);
void flush(Stream stream);
// Whether all that was written to the standard output has gone out.
bool outputWritten();

bool isTerminal(Stream stream);
// Characters of a line of it; 80 where it does not tell.
std::size_t width(Stream stream);

// The words of the command line, the program first; and a program without its folder and extension.
std::vector<std::string> commandWords(int count, char** words);
std::string programName(std::string_view path);

}  // namespace zub::terminal
