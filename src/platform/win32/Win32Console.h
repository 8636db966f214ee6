// The console of a program without windows. Text is UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zub::console {

enum class Stream : std::uint8_t { Input, Output, Errors };

bool isConsole(Stream stream);
// To a stream that is a console.
void write(Stream stream, std::string_view text);
int width(Stream stream);  // characters of a line of it; 0 where it is no console

// The words of the command line, the program's own first, as they were typed.
std::vector<std::string> words();

// `note` is called, on a thread of the system's, with the number of the signal that other systems send: for Ctrl+C and
// Ctrl+Break SIGINT, for the closed console SIGHUP, for the end of the session SIGTERM. The system ends the
// program a few seconds after the last two.
void onEnd(void (*note)(int signal));

}  // namespace zub::console
