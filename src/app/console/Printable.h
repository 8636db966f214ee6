// What is printed of names that others have made: no control character reaches the terminal. Text is UTF-8.
#pragma once

#include <string>

namespace zub {

// The text with "?" for each control character, line ends too; tabs stay.
std::string printable(std::string text);
// A message of the program: its line ends stay.
std::string printableLines(std::string text);

}  // namespace zub
