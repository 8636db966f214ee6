#include "platform/ProfileText.h"

#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/FileReader.h"

namespace zub {
namespace {

bool isSection(std::string_view line) {
  return trim(trimRight(line, CrLf)).starts_with('[');
}

// Empty for a line that begins no section.
std::string_view sectionOf(std::string_view line) {
  const std::string_view text = trim(trimRight(line, CrLf));
  return text.starts_with('[') ? text.substr(1, text.find(']') - 1) : std::string_view{};
}

// Empty for a line that sets no key.
std::string_view keyOf(std::string_view line) {
  const auto equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view{} : trim(line.substr(0, equals));
}

}  // namespace

std::string withProfileKey(std::string_view text, std::string_view section, std::string_view key,
                           std::string_view value, const CodePage& codePage) {
  const auto equal = [&codePage](std::string_view a, std::string_view b) {
    return codePage.upper(a) == codePage.upper(b);
  };
  std::vector<std::string> lines;
  while (!text.empty()) {
    lines.emplace_back(takeLineWithEnd(text));
  }
  if (!lines.empty() && !lines.back().ends_with('\n')) lines.back() += CrLf;

  const std::string setting = "=" + std::string(value) + std::string(CrLf);
  const std::string entry = std::string(key) + setting;

  std::size_t place = 0;
  while (place < lines.size() && !equal(sectionOf(lines[place]), section)) ++place;
  if (place == lines.size()) {
    lines.push_back("[" + std::string(section) + "]" + std::string(CrLf));
    lines.push_back(entry);
  } else {
    std::size_t behindLast = ++place;
    while (place < lines.size() && !isSection(lines[place]) && !equal(keyOf(lines[place]), key)) {
      if (!trim(trimRight(lines[place], CrLf)).empty()) behindLast = place + 1;
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

void writeProfileKey(Files& files, const CodePage& codePage, const std::string& windows,
                     std::string_view file, const ProfileKey& entry) {
  const bool hasFolder = file.find_first_of("\\/:") != std::string_view::npos;
  const std::string path = hasFolder ? std::string(file) : JoinPath(windows, file);
  try {
    std::string text;
    if (files.fileExists(path)) {
      FileReader reader(files, path);
      for (int c = reader.get(); c != -1; c = reader.get()) text += static_cast<char>(c);
    }
    const std::string changed = withProfileKey(text, entry.section, entry.key, entry.value, codePage);
    if (changed != text) files.replace(path, changed);
  } catch (const RuntimeError&) {
  }
}

}  // namespace zub
