#include "platform/folder/FolderPath.h"

#include <algorithm>

#include "platform/ToldName.h"
#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

bool isLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isIllegal(char c) {
  return static_cast<unsigned char>(c) < 32 ||
         std::string_view("<>:\"|?*\\/").find(c) != std::string_view::npos;
}

std::string_view withoutEnd(std::string_view part) {
  return part.substr(0, part.find_last_not_of(". ") + 1);
}

// No path leads to an entry by such a name; stand-ins are not looked into.
bool isLegal(std::string_view name) {
  if (name.empty() || isDeviceName(name)) return false;
  while (!name.empty()) {
    const std::size_t standIn = standInSize(name);
    if (standIn == 0 && isIllegal(name.front())) return false;
    name.remove_prefix(std::max<std::size_t>(standIn, 1));
  }
  return true;
}

}  // namespace

std::string FolderPath::text() const {
  std::string result{drive, ':', '\\'};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) result += '\\';
    result += parts[i];
  }
  return result;
}

std::string FolderPath::key() const {
  return folded(text());
}

bool isPlainPart(std::string_view part) {
  return part == withoutEnd(part) && isLegal(part);
}

PathFault parsePath(std::string_view path, const FolderPath& current, FolderPath& result) {
  const auto isSeparator = [](char c) { return c == '\\' || c == '/'; };
  if (path.empty()) return PathFault::BadName;
  if (path.size() > 1 && isSeparator(path[0]) && isSeparator(path[1])) return PathFault::NoNetwork;

  result.drive = current.drive;
  result.parts.clear();
  result.namesFolder = isSeparator(path.back());
  if (path.substr(1).starts_with(':') && isLetter(path[0])) {
    result.drive = static_cast<char>(UpperCase1252[static_cast<unsigned char>(path[0])]);
    path.remove_prefix(2);
  }
  const bool fromRoot = !path.empty() && isSeparator(path[0]);
  if (!fromRoot && result.drive == current.drive) result.parts = current.parts;

  while (!path.empty()) {
    const auto end = static_cast<std::size_t>(std::ranges::find_if(path, isSeparator) - path.begin());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (part.empty() || part == ".") continue;
    if (part == "..") {
      if (!result.parts.empty()) result.parts.pop_back();
      continue;
    }
    const std::string_view name = withoutEnd(part);
    if (!isLegal(name)) return PathFault::BadName;
    result.parts.emplace_back(name);
  }
  return PathFault::None;
}

}  // namespace zub
