#include "platform/folder/CodePage1252.h"

#include <algorithm>

#include "platform/ToldName.h"
#include "platform/folder/FolderPath.h"

namespace zub {
namespace {

// The characters of the bytes 0x80 to 0x9F; the five bytes without a character stand for themselves.
constexpr std::array<std::uint16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<unsigned char, 256> makeUpperCase() {
  std::array<unsigned char, 256> table{};
  for (unsigned i = 0; i < 256; ++i) {
    const bool latin = (i >= 'a' && i <= 'z') || (i >= 0xE0 && i <= 0xFE && i != 0xF7);
    table[i] = static_cast<unsigned char>(latin ? i - 0x20 : i);
  }
  table[0x9A] = 0x8A;
  table[0x9C] = 0x8C;
  table[0x9E] = 0x8E;
  table[0xFF] = 0x9F;
  return table;
}

std::uint32_t characterOf(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80] : byte;
}

// The code page's byte for a character, -1 where it has none.
int byteOf(std::uint32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<int>(character);
  const auto found = std::find(HighControls.begin(), HighControls.end(), character);
  return found == HighControls.end() ? -1 : static_cast<int>(0x80 + (found - HighControls.begin()));
}

bool isSurrogate(std::uint32_t character) {
  return character >= 0xD800 && character < 0xE000;
}

// A byte that is no UTF-8 goes as a unit that no UTF-8 gives.
constexpr std::uint32_t RawBytes = 0xDC00;

// Takes one character off the front of `utf8`; false where it is none in its shortest form.
bool takeCharacter(std::string_view& utf8, std::uint32_t& character) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char first = at(0);
  std::size_t length = 1;
  character = first;
  if (first >= 0x80) {
    length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || utf8.size() < length) return false;
    character = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
      if ((at(i) & 0xC0) != 0x80) return false;
      character = character << 6 | (at(i) & 0x3Fu);
    }
    const std::uint32_t least = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0;
    if (character < least || character > 0x10FFFF || isSurrogate(character)) return false;
  }
  utf8.remove_prefix(length);
  return true;
}

std::string ansiOfUnit(char16_t unit) {
  const int byte = byteOf(unit);
  return byte < 0 ? std::string() : std::string(1, static_cast<char>(byte));
}

// The same in all three forms: no byte beyond ASCII, no stand-in.
bool isTheSame(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80 && c != '<'; });
}

}  // namespace

const std::array<unsigned char, 256> UpperCase1252 = makeUpperCase();

int compareFolded(std::string_view a, std::string_view b) {
  const std::size_t both = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < both; ++i) {
    const int difference =
        UpperCase1252[static_cast<unsigned char>(a[i])] - UpperCase1252[static_cast<unsigned char>(b[i])];
    if (difference != 0) return difference;
  }
  return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

std::string folded(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(UpperCase1252[static_cast<unsigned char>(c)]);
  return result;
}

void appendUtf8(std::string& text, std::uint32_t character) {
  const auto add = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    add(0x80 | (character & 0x3F));
  } else {
    if (character < 0x10000) {
      add(0xE0 | character >> 12);
    } else {
      add(0xF0 | character >> 18);
      add(0x80 | (character >> 12 & 0x3F));
    }
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

std::u16string utf16FromUtf8(std::string_view utf8) {
  std::u16string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    std::uint32_t character = 0;
    if (!takeCharacter(utf8, character)) {
      character = RawBytes | static_cast<unsigned char>(utf8.front());
      utf8.remove_prefix(1);
    }
    if (character >= 0x10000) {
      text += static_cast<char16_t>(0xD7C0 + (character >> 10));
      character = 0xDC00 | (character & 0x3FF);
    }
    text += static_cast<char16_t>(character);
  }
  return text;
}

std::u16string utf16FromAnsi(std::string_view text) {
  std::u16string units;
  units.reserve(text.size());
  for (const char c : text) units += static_cast<char16_t>(characterOf(static_cast<unsigned char>(c)));
  return untold(units);
}

std::u16string folded(std::u16string text) {
  for (char16_t& unit : text) {
    const int byte = byteOf(unit);
    if (byte >= 0) unit = static_cast<char16_t>(characterOf(UpperCase1252[static_cast<std::size_t>(byte)]));
  }
  return text;
}

std::string utf8FromAnsi(std::string_view text) {
  if (isTheSame(text)) return std::string(text);
  std::string result;
  result.reserve(text.size());
  const std::u16string units = utf16FromAnsi(text);
  for (std::size_t i = 0; i < units.size(); ++i) {
    const std::uint32_t unit = units[i];
    const bool pair =
        unit >= 0xD800 && unit < 0xDC00 && i + 1 < units.size() && (units[i + 1] & 0xFC00) == 0xDC00;
    if (pair)
      appendUtf8(result, ((unit - 0xD7C0) << 10) | (units[++i] & 0x3FFu));
    else if (unit >= (RawBytes | 0x80) && unit <= (RawBytes | 0xFF))
      result += static_cast<char>(unit & 0xFF);
    else
      appendUtf8(result, unit);
  }
  return result;
}

std::string ansiFromUtf8(std::string_view utf8) {
  return isTheSame(utf8) ? std::string(utf8) : toldText(utf16FromUtf8(utf8), ansiOfUnit);
}

std::string toldNameFromUtf8(std::string_view utf8) {
  const bool same = isTheSame(utf8) && isPlainPart(utf8);
  return same ? std::string(utf8) : toldFileName(utf16FromUtf8(utf8), ansiOfUnit);
}

}  // namespace zub
