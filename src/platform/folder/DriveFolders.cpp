#include "platform/folder/DriveFolders.h"

namespace zub {
namespace {

bool isEmpty(HostDir& folder) {
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  return folder.list(listing) == HostError::None && !listing->next(entry) &&
         listing->failure() == HostError::None;
}

constexpr char upperLetter(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

bool isAbsoluteOnHost(const std::string& path) {
  return path.starts_with('/') || path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
}

std::string DriveFolders::elsewhere(char letter) const {
  const auto told = facts_.driveFolders.find(letter);
  if (told == facts_.driveFolders.end()) return {};
  return isAbsoluteOnHost(told->second) ? told->second : folder_ + "/" + told->second;
}

HostError DriveFolders::open(char letter, std::unique_ptr<HostDir>& drive) {
  const std::string name(1, letter);
  const std::string path = elsewhere(letter);
  if (path.empty()) return root_.openDir(name, drive);
  auto opened = openHostDir(path);
  if (!opened) return HostError::NotFound;
  drive = watched(std::move(opened), name, failures_);
  return HostError::None;
}

bool DriveFolders::isThere(char letter) {
  if (facts_.driveFolders.contains(letter)) return openHostDir(elsewhere(letter)) != nullptr;
  HostStat stat;
  return root_.stat(std::string(1, letter), stat) == HostError::None && stat.kind == HostKind::Folder;
}

std::vector<char> DriveFolders::letters() {
  std::vector<char> letters;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if (facts_.drives.contains(letter) || isThere(letter)) letters.push_back(letter);
  }
  return letters;
}

std::vector<char> DriveFolders::withDisk() {
  std::vector<char> found;
  for (const char letter : letters()) {
    if (isThere(letter)) found.push_back(letter);
  }
  return found;
}

bool DriveFolders::isReadOnly(char letter) {
  if (facts_.readOnlyDrives.contains(letter)) return true;
  std::unique_ptr<HostDir> drive;
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  return open(letter, drive) == HostError::None && drive->list(listing) == HostError::None &&
         listing->next(entry) && drive->mayRemove(entry.name) == HostError::ReadOnlyDisk;
}

std::vector<std::string> DriveFolders::oddities() {
  std::vector<std::string> lines;
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  if (root_.list(listing) == HostError::None) {
    while (listing->next(entry)) {
      const char letter = entry.name.size() == 1 ? upperLetter(entry.name[0]) : '\0';
      if (letter < 'A' || letter > 'Z' || isThere(letter)) continue;
      const std::string name = "\"" + entry.name + "\" is ";
      const std::string remedy = "; with \"drive " + std::string(1, letter) +
                                 " = fixed at FOLDER\" in pc.txt a drive lies in another folder";
      if (entry.stat.kind == HostKind::Link) lines.push_back(name + "a link, which is no drive" + remedy);
      if (entry.stat.kind == HostKind::Folder) lines.push_back(name + "no drive: those have capital letters");
    }
  }
  for (const auto& [letter, path] : facts_.driveFolders) {
    if (!isThere(letter)) {
      lines.push_back("drive " + std::string(1, letter) + ": holds no disk: " + elsewhere(letter) +
                      " is no folder that can be opened");
    }
  }
  for (const char letter : withDisk()) {
    std::unique_ptr<HostDir> drive;
    if (open(letter, drive) == HostError::None && isEmpty(*drive)) {
      lines.push_back("drive " + std::string(1, letter) + ": is empty: is its disk mounted?");
    }
  }
  return lines;
}

}  // namespace zub
