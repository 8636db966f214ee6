#include "platform/ToldName.h"

#include <algorithm>
#include <array>

namespace zub {
namespace {

constexpr std::size_t DigitsOfUnit = 4;
constexpr std::string_view Digits = "0123456789ABCDEF";
constexpr std::u16string_view Illegal = u"<>:\"|?*\\/";

// In ANSI or in UTF-16.
template <class Text>
std::size_t standInAt(Text text) {
  const auto isDigit = [](auto unit) { return (unit >= '0' && unit <= '9') || (unit >= 'A' && unit <= 'F'); };
  if (text.empty() || text[0] != '<') return 0;
  std::size_t end = 1;
  while (end < text.size() && isDigit(text[end])) ++end;
  const bool whole = end > 1 && (end - 1) % DigitsOfUnit == 0 && end < text.size() && text[end] == '>';
  return whole ? end + 1 : 0;
}

void appendDigits(std::string& text, char16_t unit) {
  for (int shift = 12; shift >= 0; shift -= 4) text += Digits[unit >> shift & 0xF];
}

char16_t unitOf(std::u16string_view digits) {
  unsigned unit = 0;
  for (const char16_t digit : digits) unit = unit << 4 | (digit <= '9' ? digit - '0' : digit - 'A' + 10u);
  return static_cast<char16_t>(unit);
}

// A byte 5C is a separator to whoever reads the text, whatever character it is a part of.
bool isPlain(std::string_view ansi) {
  return !ansi.empty() && ansi.find('\\', 1) == std::string_view::npos;
}

template <class Misleads>
std::string told(std::u16string_view text, const AnsiOfUnit& ansi, Misleads misleads) {
  std::string result;
  result.reserve(text.size());
  bool inStandIn = false;
  for (std::size_t place = 0; place < text.size(); ++place) {
    const std::string bytes = ansi(text[place]);
    const bool plain = isPlain(bytes) && standInAt(text.substr(place)) == 0 && !misleads(place);
    if (inStandIn == plain) result += plain ? '>' : '<';
    inStandIn = !plain;
    if (plain)
      result += bytes;
    else
      appendDigits(result, text[place]);
  }
  if (inStandIn) result += '>';
  return result;
}

char upperLetter(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

std::string toldText(std::u16string_view text, const AnsiOfUnit& ansi) {
  return told(text, ansi, [](std::size_t) { return false; });
}

std::string toldFileName(std::u16string_view name, const AnsiOfUnit& ansi) {
  std::string result = told(name, ansi, [name](std::size_t place) {
    const char16_t unit = name[place];
    const bool atEnd = place + 1 == name.size();
    return unit < ' ' || Illegal.find(unit) != std::u16string_view::npos ||
           (atEnd && (unit == '.' || unit == ' '));
  });
  if (!isDeviceName(result)) return result;
  std::string first = "<";
  appendDigits(first, name.front());
  return result.replace(0, 1, first + '>');
}

std::size_t standInSize(std::string_view text) {
  return standInAt(text);
}

std::u16string untold(std::u16string_view text, const std::function<void(char16_t)>& see) {
  std::u16string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t size = standInAt(text);
    if (size == 0) {
      result += text.front();
      text.remove_prefix(1);
      continue;
    }
    for (std::size_t place = 1; place + 1 < size; place += DigitsOfUnit) {
      result += unitOf(text.substr(place, DigitsOfUnit));
      if (see) see(result.back());
    }
    text.remove_prefix(size);
  }
  return result;
}

bool isDeviceName(std::string_view name) {
  static constexpr std::array<std::string_view, 7> Plain = {"CON",    "PRN",     "AUX",   "NUL",
                                                            "CONIN$", "CONOUT$", "CLOCK$"};
  name = name.substr(0, name.find('.'));
  name = name.substr(0, name.find_last_not_of(' ') + 1);
  const auto is = [](std::string_view text, std::string_view device) {
    return std::ranges::equal(text, device, {}, upperLetter);
  };
  if (std::ranges::any_of(Plain, [&](std::string_view device) { return is(name, device); })) return true;
  const std::string_view port = name.substr(0, 3);
  return name.size() == 4 && name[3] >= '1' && name[3] <= '9' && (is(port, "COM") || is(port, "LPT"));
}

}  // namespace zub
