#include "platform/folder/ProfileText.h"

#include <vector>

#include "base/Text.h"
#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

std::string_view withoutEnd(std::string_view line) {
  return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

bool isSection(std::string_view line) {
  return trim(withoutEnd(line)).starts_with('[');
}

bool isSectionOf(std::string_view line, std::string_view section) {
  const std::string_view text = trim(withoutEnd(line));
  return text.starts_with('[') && equalFolded(text.substr(1, text.find(']') - 1), section);
}

bool isKey(std::string_view line, std::string_view key) {
  const auto equals = line.find('=');
  return equals != std::string_view::npos && equalFolded(trim(line.substr(0, equals)), key);
}

}  // namespace

std::string withProfileKey(std::string_view text, std::string_view section, std::string_view key,
                           std::string_view value) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end == std::string_view::npos ? end : end + 1);
    lines.emplace_back(line);
    text.remove_prefix(line.size());
  }
  if (!lines.empty() && !lines.back().ends_with('\n')) lines.back() += CrLf;

  const std::string setting = "=" + std::string(value) + std::string(CrLf);
  const std::string entry = std::string(key) + setting;

  std::size_t place = 0;
  while (place < lines.size() && !isSectionOf(lines[place], section)) ++place;
  if (place == lines.size()) {
    lines.push_back("[" + std::string(section) + "]" + std::string(CrLf));
    lines.push_back(entry);
  } else {
    std::size_t behindLast = ++place;
    while (place < lines.size() && !isSection(lines[place]) && !isKey(lines[place], key)) {
      if (!trim(withoutEnd(lines[place])).empty()) behindLast = place + 1;
      ++place;
    }
    if (place < lines.size() && !isSection(lines[place])) {
      lines[place] = std::string(trim(lines[place].substr(0, lines[place].find('=')))) + setting;
    } else {
      lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(behindLast), entry);
    }
  }
  std::string result;
  for (const std::string& line : lines) result += line;
  return result;
}

}  // namespace zub
