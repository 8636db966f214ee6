#include "platform/folder/FolderServices.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/FolderContent.h"
#include "platform/ProfileText.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/PcError.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

// The sizes of the system's version record, in bytes.
constexpr std::uint32_t VersionRecord = 148;
constexpr std::uint32_t LongVersionRecord = 156;

constexpr std::int32_t Failed = static_cast<std::int32_t>(0x80004005);

// '\0' where the text is no drive.
char letterOf(std::string_view drive) {
  const bool isDrive = drive.size() > 1 && drive[1] == ':';
  return isDrive ? static_cast<char>(UpperCase1252[static_cast<unsigned char>(drive[0])]) : '\0';
}

// "S-1-5-21-...", which is what the system names a user's bin by.
bool isIdentifier(std::string_view user) {
  return equalFolded(user.substr(0, 4), "S-1-") &&
         user.find_first_not_of("0123456789-", 2) == std::string_view::npos;
}

}  // namespace

std::vector<std::string> FolderDrives::list() {
  std::vector<std::string> result;
  for (const char letter : disk_.drives()) result.push_back({letter, ':'});
  return result;
}

bool FolderDrives::exists(std::string_view drive) {
  const std::vector<char> letters = disk_.drives();
  return std::ranges::find(letters, letterOf(drive)) != letters.end();
}

DriveType FolderDrives::type(std::string_view drive) {
  if (!exists(drive)) return DriveType::Unknown;
  const auto told = facts_.drives.find(letterOf(drive));
  return told == facts_.drives.end() ? DriveType::Fixed : told->second;
}

std::string FolderSystemFolders::temp(std::uint32_t room) {
  std::string path = withBackslash(facts_.temp.text());
  return path.size() < room ? path : std::string{};
}

void FolderRestart::deleteAtRestart(std::string_view file) {
  FolderPath path;
  if (parsePath(file, facts_.current, path) == PathFault::None) facts_.addRemoveAtRestart(path);
}

void FolderRestart::writeProfile(std::string_view section, std::string_view key, std::string_view value,
                                 std::string_view file) {
  static const CodePage1252 codePage;
  writeProfileKey(files_, codePage, facts_.windows.text(), file, {section, key, value});
}

std::uint32_t FolderRestart::platformId(std::uint32_t recordSize) {
  const bool tellsItsSize = recordSize == VersionRecord || recordSize == LongVersionRecord;
  if (!tellsItsSize) return 0;
  return facts_.family->platformId;
}

std::vector<std::string> FolderShell::recycleBins() {
  std::vector<std::string> folders;
  for (const std::string& drive : drives_.list()) {
    if (drives_.type(drive) != DriveType::Fixed) continue;
    folders.push_back(JoinPath(drive, CommonBin));
    if (!facts_.family->binsOfUsers || !isIdentifier(facts_.user)) continue;
    for (const std::string_view bins : UserBins)
      folders.push_back(JoinPath(JoinPath(drive, bins), facts_.user));
  }
  return folders;
}

std::int32_t FolderShell::emptyRecycleBin(std::uint32_t) {
  return emptyFolders(files_, recycleBins()) ? 0 : Failed;
}

void FolderShell::start(std::string_view) {
  throw RuntimeError(ErrorNumber::FileNotFound);
}

bool FolderProcess::otherInstanceRuns() {
  if (taken_) return false;
  const HostError error = root_.take();
  if (error != HostError::None && error != HostError::InUse) {
    throw PcError("the PC", 0, "cannot be locked: " + reasonOf(error));
  }
  taken_ = error == HostError::None && !outdated_();
  return !taken_;
}

void FolderProcess::end() {
  throw EndOfProcess{};
}

}  // namespace zub
