#include "base/Text.h"

#include <algorithm>
#include <limits>

namespace zub {

std::string_view trimLeft(std::string_view text, std::string_view blanks) {
  const auto first = text.find_first_not_of(blanks);
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

std::string_view trimRight(std::string_view text, std::string_view blanks) {
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::string_view trim(std::string_view text, std::string_view blanks) {
  return trimLeft(trimRight(text, blanks), blanks);
}

std::string_view takeLineWithEnd(std::string_view& text) {
  const std::string_view line = text.substr(0, std::min(text.find('\n'), text.size() - 1) + 1);
  text.remove_prefix(line.size());
  return line;
}

std::string_view takeLine(std::string_view& text) {
  std::string_view line = takeLineWithEnd(text);
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string_view StripAtNull(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

std::string upperAscii(std::string_view text) {
  std::string upper(text);
  std::ranges::transform(upper, upper.begin(),
                         [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return upper;
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

std::string_view lastPathPart(std::string_view path) {
  return path.substr(path.rfind('\\') + 1);
}

std::string_view withoutLastPathPart(std::string_view path) {
  const auto last = path.rfind('\\');
  return last == std::string_view::npos ? std::string_view{} : path.substr(0, last);
}

std::string withBackslash(std::string_view path) {
  std::string result(path);
  if (!result.ends_with('\\')) result += '\\';
  return result;
}

std::string JoinPath(std::string_view folder, std::string_view path) {
  std::string result(folder);
  if (!trim(folder).ends_with('\\')) result += '\\';
  result += path;
  return result;
}

std::int32_t leadingNumber(std::string_view text) {
  text = trimLeft(text);
  if (text.starts_with('+')) text.remove_prefix(1);
  constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    number = std::min(limit, number * 10 + (c - '0'));
  }
  return static_cast<std::int32_t>(number);
}

}  // namespace zub
