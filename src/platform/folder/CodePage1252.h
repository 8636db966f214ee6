// The code page of every PC in a folder: Windows-1252. The host's names are UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/CodePage.h"

namespace zub {

// Upper case of each byte.
extern const std::array<unsigned char, 256> UpperCase1252;

// Order and equality without regard to case.
int compareFolded(std::string_view a, std::string_view b);
inline bool equalFolded(std::string_view a, std::string_view b) {
  return a.size() == b.size() && compareFolded(a, b) == 0;
}
std::string folded(std::string_view text);

struct FoldedLess {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return compareFolded(a, b) < 0; }
};

// Between the host's UTF-8 and the PC's ANSI texts, which tell what the code page lacks by stand-ins
// (platform/ToldName.h), bytes that are no UTF-8 too. Nothing is lost on the way there and back.
std::string ansiFromUtf8(std::string_view utf8);
std::string utf8FromAnsi(std::string_view text);
// The same for the name of a file.
std::string toldNameFromUtf8(std::string_view utf8);
std::u16string utf16FromUtf8(std::string_view utf8);
std::u16string utf16FromAnsi(std::string_view text);
// Upper case of what the code page holds.
std::u16string folded(std::u16string text);
// Appends a character as UTF-8.
void appendUtf8(std::string& text, std::uint32_t character);

class CodePage1252 : public CodePage {
 public:
  std::string upper(std::string_view text) const override { return folded(text); }
};

}  // namespace zub
