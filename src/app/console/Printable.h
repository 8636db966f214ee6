// What is printed of names that others have made: no control character reaches the terminal.
#pragma once

#include <cstdint>
#include <string>

namespace zub {

enum class Letters : std::uint8_t {
  OneByte,  // or a code page of several bytes: those from 128 on are letters
  Utf8,
};

// The text with "?" for each control character, line ends too; tabs stay.
std::string printable(std::string text, Letters letters);
// A message of the program: its line ends stay.
std::string printableLines(std::string text);

}  // namespace zub
