// Text helpers. Text is 8-bit, in the PC's ANSI code page; positions are bytes. To fold case needs the code page
// (platform/CodePage.h), but for words of plain letters.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zub {

inline constexpr std::string_view CrLf = "\r\n";

// Blanks are the character 32 only, unless the caller names more.
std::string_view trimLeft(std::string_view text, std::string_view blanks = " ");
std::string_view trimRight(std::string_view text, std::string_view blanks = " ");
std::string_view trim(std::string_view text, std::string_view blanks = " ");

// Takes the first line off a text that is not empty; the last line may lack its end.
std::string_view takeLine(std::string_view& text);  // without its CR LF, LF or CR
std::string_view takeLineWithEnd(std::string_view& text);

// The text left of the first NUL, or all of it.
std::string_view StripAtNull(std::string_view text);

// A to Z only, for words that hold no other letters.
std::string upperAscii(std::string_view text);

bool contains(std::string_view text, std::string_view part);

// The parts end to end.
std::string joined(std::initializer_list<std::string_view> parts);

// The part behind the last backslash; all of it where there is none.
std::string_view lastPathPart(std::string_view path);
// The part before the last backslash; empty where there is none.
std::string_view withoutLastPathPart(std::string_view path);
// The path with a backslash at its end.
std::string withBackslash(std::string_view path);

// A folder and a relative path with exactly one backslash between. Blanks behind the folder do not hide its
// own backslash, and stay.
std::string JoinPath(std::string_view folder, std::string_view path);

// The number that a text begins with after blanks ("7 times" is 7), 0 where there is none. Clamped to 32 bits.
std::int32_t leadingNumber(std::string_view text);

}  // namespace zub
