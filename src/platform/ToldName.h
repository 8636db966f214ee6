// Names and texts as the program is told them: ANSI text, in which a character that the code page does not hold
// exactly stands as the hexadecimal digits of its UTF-16, four for each unit, a run of them in angle brackets:
// "<0101>.tmp". What a told text stands for can be told from it alone, and two names never look alike: a real
// text that could be taken for such a stand-in has its bracket in that form ("<003C>").
//
// A told name of a file holds nothing that a path would read in another way: separators, colons, wildcards, a
// dot or blank at the end and the first letter of a device's name are stand-ins as well. No name that Windows
// makes has them or an angle bracket; other systems leave such names on its disks.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zub {

// The ANSI bytes that stand for this one unit of UTF-16 and no other; empty where there are none.
using AnsiOfUnit = std::function<std::string(char16_t)>;

std::string toldText(std::u16string_view text, const AnsiOfUnit& ansi);
std::string toldFileName(std::u16string_view name, const AnsiOfUnit& ansi);

// How many bytes of the text are a stand-in that it begins with; 0 where it begins with none.
std::size_t standInSize(std::string_view text);
// The text with its stand-ins resolved; `see` is asked about each unit that one stood for.
std::u16string untold(std::u16string_view text, const std::function<void(char16_t)>& see = {});

// "con", "NUL.txt", "com1": the names of devices, in every folder, with any extension.
bool isDeviceName(std::string_view name);

}  // namespace zub
