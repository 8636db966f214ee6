#include "platform/folder/FolderDisk.h"

#include <algorithm>
#include <optional>

#include "platform/folder/CodePage1252.h"
#include "platform/folder/HostFailure.h"
#include "platform/folder/ShortName.h"

namespace zub {
namespace {

// The host's name of an entry that is not there as written: found without regard to case, the first in the
// host's order of bytes where there are several, else by its 8.3 name. A folder that cannot be listed whole does
// not tell that there is none.
std::optional<std::string> searchName(HostDir& folder, std::string_view name) {
  const bool mayBeShort = name.find('~') != std::string_view::npos;
  std::unique_ptr<HostList> listing;
  check(folder.list(listing));
  std::optional<std::string> best;
  std::vector<std::string> hostNames;
  std::vector<std::string> names;
  HostEntry entry;
  while (listing->next(entry)) {
    const std::string pcName = ansiFromUtf8(entry.name);
    if (equalFolded(pcName, name) && (!best || entry.name < *best)) best = entry.name;
    if (!mayBeShort) continue;
    hostNames.push_back(entry.name);
    names.push_back(pcName);
  }
  check(listing->failure());
  if (best || !mayBeShort) return best;
  const std::vector<std::string> shorts = shortNames(names);
  const auto found = std::ranges::find_if(shorts, [&](const auto& text) { return equalFolded(text, name); });
  if (found == shorts.end()) return std::nullopt;
  return hostNames[static_cast<std::size_t>(found - shorts.begin())];
}

}  // namespace

std::unique_ptr<HostDir> FolderDisk::openDrive(char letter) {
  std::unique_ptr<HostDir> drive;
  const HostError error = root_.openDir(std::string(1, letter), drive);
  if (error == HostError::NotFound || error == HostError::NotAFolder) {
    throw RuntimeError(facts_.drives.contains(letter) ? ErrorNumber::DiskNotReady
                                                      : ErrorNumber::PathNotFound);
  }
  check(error);
  return drive;
}

// How many of the open folders, the drive not counted, are on this path.
std::size_t FolderDisk::sharedParts(const FolderPath& path, std::size_t parts) const {
  std::size_t shared = 0;
  while (shared < parts && shared + 1 < open_.size() && open_[shared + 1].name == path.parts[shared])
    ++shared;
  return shared;
}

HostDir& FolderDisk::openOn(const FolderPath& path, std::size_t parts) {
  if (open_.empty() || open_[0].name[0] != path.drive) {
    open_.clear();
    const std::string letter(1, path.drive);
    open_.push_back({letter, letter, openDrive(path.drive)});
  }
  std::size_t at = sharedParts(path, parts);
  open_.resize(at + 1);
  for (; at < parts; ++at) {
    HostDir& here = *open_.back().dir;
    const std::string& name = path.parts[at];
    std::unique_ptr<HostDir> next;
    std::string hostName = utf8From1252(name);
    HostError error = here.openDir(hostName, next);
    if (error == HostError::NotFound) {
      if (const auto found = searchName(here, name)) {
        hostName = *found;
        error = here.openDir(hostName, next);
      }
    }
    if (error == HostError::NotFound) throw RuntimeError(ErrorNumber::PathNotFound);
    check(error);
    open_.push_back({name, std::move(hostName), std::move(next)});
  }
  return *open_.back().dir;
}

HostDir& FolderDisk::walk(const FolderPath& path, std::size_t parts) {
  const bool fromKept = !open_.empty();
  try {
    return openOn(path, parts);
  } catch (const RuntimeError& failure) {
    const bool stale =
        failure.number() == ErrorNumber::PathNotFound || failure.number() == ErrorNumber::DeviceIo;
    if (!fromKept || !stale) throw;
  }
  forget();
  return openOn(path, parts);
}

FolderDisk::Place FolderDisk::place(const FolderPath& path) {
  Place place;
  if (path.parts.empty()) {
    walk(path, 0);
    place.stat.kind = HostKind::Folder;
    place.exists = true;
    return place;
  }
  place.name = utf8From1252(path.parts.back());
  for (bool fromKept = !open_.empty();; fromKept = false) {
    place.parent = &walk(path, path.parts.size() - 1);
    HostError error = place.parent->stat(place.name, place.stat);
    if (error == HostError::NotFound) {
      if (const auto found = searchName(*place.parent, path.parts.back())) {
        place.name = *found;
        error = place.parent->stat(place.name, place.stat);
      }
    }
    place.exists = error == HostError::None;
    if (place.exists) return place;
    if (error != HostError::NotFound) check(error);
    if (!fromKept) return place;
    forget();
  }
}

FolderPath FolderDisk::pathOf(const Place& place) const {
  FolderPath path{open_.front().name[0], {}};
  for (std::size_t i = 1; i < open_.size(); ++i) path.parts.push_back(ansiFromUtf8(open_[i].hostName));
  if (place.parent != nullptr) path.parts.push_back(ansiFromUtf8(place.name));
  return path;
}

std::vector<char> FolderDisk::drives() {
  std::vector<char> letters;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    HostStat stat;
    const bool isFolder =
        root_.stat(std::string(1, letter), stat) == HostError::None && stat.kind == HostKind::Folder;
    if (isFolder || facts_.drives.contains(letter)) letters.push_back(letter);
  }
  return letters;
}

}  // namespace zub
