#include "platform/folder/FolderDisk.h"

#include <algorithm>

#include "platform/folder/CodePage1252.h"
#include "platform/folder/ShortName.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::size_t MostFolders = 16;  // whose names are remembered

// Of a deep path only some folders are held open: the last ones, and every so many of the others.
constexpr std::size_t LastHeld = 32;
constexpr std::size_t HeldStep = 256;

bool isLink(HostDir& folder, const std::string& name) {
  HostStat stat;
  return folder.stat(name, stat) == HostError::None && stat.kind == HostKind::Link;
}

}  // namespace

std::unique_ptr<HostDir> FolderDisk::openDrive(char letter) {
  std::unique_ptr<HostDir> drive;
  const HostError error = folders_.open(letter, drive);
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

FolderNames& FolderDisk::namesOf(HostDir& folder, const FolderPath& path, std::size_t parts) {
  FolderPath prefix{path.drive, {}};
  prefix.parts.assign(path.parts.begin(), path.parts.begin() + static_cast<std::ptrdiff_t>(parts));
  const std::string key = prefix.key();
  auto known = names_.find(key);
  if (known != names_.end() && !known->second.fresh()) {
    names_.erase(known);
    known = names_.end();
  }
  if (known != names_.end()) return known->second;
  if (names_.size() == MostFolders) names_.clear();
  return names_.emplace(key, FolderNames(folder)).first->second;
}

// Tries the part of the path as it is written and then by the names that it may mean. `hostName` is the one
// that the last try was for; where nothing is there, as written.
template <class Try>
HostError FolderDisk::byAnyName(HostDir& folder, const FolderPath& path, std::size_t at,
                                std::string& hostName, Try attempt) {
  const std::string& name = path.parts[at];
  hostName = utf8FromAnsi(name);
  // Some hosts find an entry by its 8.3 name, too, and then do not tell its own.
  const bool mayBeShort = isMadeShortName(name);
  HostError error = HostError::NotFound;
  if (!mayBeShort || namesOf(folder, path, at).has(hostName)) error = attempt();
  if (error != HostError::NotFound) return error;
  FolderNames& names = namesOf(folder, path, at);
  while (const auto found = names.find(folder, name)) {
    hostName = *found;
    error = attempt();
    if (error != HostError::NotFound) return error;
    names.drop(*found);
  }
  hostName = utf8FromAnsi(name);
  if (!mayBeShort) return error;
  error = attempt();
  if (error == HostError::NotFound) tellNoShortName(name);
  return error;
}

// Of a folder that is open. Where the disk keeps no 8.3 names, what was meant by this one may well be there.
void FolderDisk::tellNoShortName(std::string_view name) {
  std::string path;
  for (const Open& folder : open_) path += folder.hostName + '/';
  failures_.add(path + utf8FromAnsi(name), "an 8.3 name that leads nowhere");
}

void FolderDisk::letGoBefore(std::size_t at) {
  if (at >= LastHeld && (at - LastHeld) % HeldStep != 0) open_[at - LastHeld].dir.reset();
}

// Opens the last folder anew where it was let go, from the next one above it that is held.
void FolderDisk::holdLast() {
  std::size_t held = open_.size() - 1;
  while (open_[held].dir == nullptr) --held;
  for (std::size_t at = held + 1; at < open_.size(); ++at) {
    const HostError error = open_[at - 1].dir->openDir(open_[at].hostName, open_[at].dir);
    if (error == HostError::NotFound) throw RuntimeError(ErrorNumber::PathNotFound);
    check(error);
    letGoBefore(at);
  }
}

HostDir& FolderDisk::openOn(const FolderPath& path, std::size_t parts) {
  if (open_.empty() || open_[0].name[0] != path.drive) {
    open_.clear();
    const std::string letter(1, path.drive);
    open_.push_back({letter, letter, openDrive(path.drive)});
  }
  std::size_t at = sharedParts(path, parts);
  open_.resize(at + 1);
  holdLast();
  for (; at < parts; ++at) {
    HostDir& here = *open_.back().dir;
    const std::string& name = path.parts[at];
    std::unique_ptr<HostDir> next;
    std::string hostName;
    const HostError error = byAnyName(here, path, at, hostName, [&] { return here.openDir(hostName, next); });
    if (error == HostError::NotFound) throw RuntimeError(ErrorNumber::PathNotFound);
    if (error == HostError::NotAFolder && isLink(here, hostName))
      throw RuntimeError(ErrorNumber::PermissionDenied);
    check(error);
    open_.push_back({name, std::move(hostName), std::move(next)});
    letGoBefore(open_.size() - 1);
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
  open_.clear();
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
  const std::size_t last = path.parts.size() - 1;
  for (bool fromKept = !open_.empty();; fromKept = false) {
    place.parent = &walk(path, last);
    const HostError error = byAnyName(*place.parent, path, last, place.name,
                                      [&] { return place.parent->stat(place.name, place.stat); });
    place.exists = error == HostError::None;
    if (place.exists) return place;
    if (error != HostError::NotFound) check(error);
    if (!fromKept) return place;
    open_.clear();
  }
}

std::string FolderDisk::shortName(const FolderPath& path) {
  const Place found = place(path);
  if (!found.exists) throw RuntimeError(ErrorNumber::FileNotFound);
  if (found.parent == nullptr) return {};
  const std::size_t last = path.parts.size() - 1;
  // Some hosts find a name without regard to case, and then do not tell their own.
  const auto told = [&] {
    FolderNames& names = namesOf(*found.parent, path, last);
    if (names.has(found.name)) return names.shortName(*found.parent, found.name);
    const auto own = names.find(*found.parent, path.parts[last]);
    return own ? names.shortName(*found.parent, *own) : std::nullopt;
  };
  return told().value_or(toldNameFromUtf8(found.name));
}

FolderPath FolderDisk::pathOf(const Place& place) const {
  FolderPath path{open_.front().name[0], {}};
  for (std::size_t i = 1; i < open_.size(); ++i) path.parts.push_back(toldNameFromUtf8(open_[i].hostName));
  if (place.parent != nullptr) path.parts.push_back(toldNameFromUtf8(place.name));
  return path;
}

}  // namespace zub
