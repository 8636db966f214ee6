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

FolderNames& FolderDisk::names() {
  std::string key;
  for (const Open& folder : open_) key += folded(folder.name) + '\\';
  auto known = names_.find(key);
  if (known != names_.end() && !known->second.fresh()) {
    names_.erase(known);
    known = names_.end();
  }
  if (known != names_.end()) return known->second;
  if (names_.size() == MostFolders) names_.clear();
  return names_.emplace(key, FolderNames(*open_.back().dir)).first->second;
}

// Tries a name in the folder that is open last, as it is written and then by the names that it may mean. `hostName` is
// the one that the last try was for; where nothing is there, as written.
template <class Try>
HostError FolderDisk::byAnyName(const std::string& name, std::string& hostName, Try attempt) {
  HostDir& folder = *open_.back().dir;
  hostName = utf8FromAnsi(name);
  // Some hosts find an entry by its 8.3 name, too, and then do not tell its own.
  const bool mayBeShort = isMadeShortName(name);
  HostError error = HostError::NotFound;
  if (!mayBeShort || names().has(hostName)) error = attempt();
  if (error != HostError::NotFound) return error;
  FolderNames& known = names();
  while (const auto found = known.find(folder, name)) {
    hostName = *found;
    error = attempt();
    if (error != HostError::NotFound) return error;
    known.drop(*found);
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
    std::unique_ptr<HostDir> dir;
    const HostError error = open_[at - 1].dir->openDir(open_[at].hostName, dir);
    if (error == HostError::NotFound) throw RuntimeError(ErrorNumber::PathNotFound);
    check(error);
    open_[at].dir = std::move(dir);
    letGoBefore(at);
  }
}

// Goes one folder down.
void FolderDisk::enter(const std::string& name) {
  HostDir& folder = *open_.back().dir;
  std::unique_ptr<HostDir> next;
  std::string hostName;
  const HostError error = byAnyName(name, hostName, [&] { return folder.openDir(hostName, next); });
  if (error == HostError::NotFound) throw RuntimeError(ErrorNumber::PathNotFound);
  if (error == HostError::NotAFolder && isLink(folder, hostName))
    throw RuntimeError(ErrorNumber::PermissionDenied);
  check(error);
  open_.push_back({name, std::move(hostName), std::move(next)});
  letGoBefore(open_.size() - 1);
}

HostDir& FolderDisk::here() {
  holdLast();
  return *open_.back().dir;
}

HostError FolderDisk::down(const std::string& hostName) {
  std::unique_ptr<HostDir> next;
  const HostError error = here().openDir(hostName, next);
  if (error != HostError::None) return error;
  open_.push_back({toldNameFromUtf8(hostName), hostName, std::move(next)});
  letGoBefore(open_.size() - 1);
  return error;
}

void FolderDisk::foundIn(std::string_view folder) {
  const bool plain = folder.find(':') == 1 && folder.ends_with('\\') &&
                     static_cast<std::size_t>(std::ranges::count(folder, '\\')) == open_.size();
  text_ = plain ? folder : std::string_view();
}

bool FolderDisk::enterFromLast(std::string_view folder) {
  const auto differ = std::ranges::mismatch(folder, text_).in1;
  const auto shared = folder.substr(0, static_cast<std::size_t>(differ - folder.begin())).rfind('\\') + 1;
  if (shared == 0) return false;
  const auto over = std::ranges::count(std::string_view(text_).substr(shared), '\\');
  open_.resize(open_.size() - static_cast<std::size_t>(over));
  text_.resize(shared);
  folder.remove_prefix(shared);
  try {
    holdLast();
    while (!folder.empty()) {
      const std::string_view part = folder.substr(0, folder.find('\\'));
      if (part.size() == folder.size() || !isPlainPart(part)) return false;
      enter(std::string(part));
      text_.append(part) += '\\';
      folder.remove_prefix(part.size() + 1);
    }
  } catch (const RuntimeError&) {
    close();
  }
  return !open_.empty();
}

HostDir* FolderDisk::folderFromLast(std::string_view folder) {
  return enterFromLast(folder) ? open_.back().dir.get() : nullptr;
}

std::optional<FolderDisk::Place> FolderDisk::placeFromLast(std::string_view path) {
  const auto behindFolder = path.rfind('\\') + 1;
  const std::string name(path.substr(behindFolder));
  if (!isPlainPart(name) || !enterFromLast(path.substr(0, behindFolder))) return std::nullopt;
  Place place;
  place.parent = open_.back().dir;
  const HostError error =
      byAnyName(name, place.name, [&] { return place.parent->stat(place.name, place.stat); });
  place.exists = error == HostError::None;
  return place.exists ? std::optional(place) : std::nullopt;
}

const std::shared_ptr<HostDir>& FolderDisk::openOn(const FolderPath& path, std::size_t parts) {
  text_.clear();
  if (open_.empty() || open_[0].name[0] != path.drive) {
    open_.clear();
    const std::string letter(1, path.drive);
    open_.push_back({letter, letter, openDrive(path.drive)});
  }
  const std::size_t shared = sharedParts(path, parts);
  open_.resize(shared + 1);
  holdLast();
  for (std::size_t at = shared; at < parts; ++at) enter(path.parts[at]);
  return open_.back().dir;
}

const std::shared_ptr<HostDir>& FolderDisk::walk(const FolderPath& path, std::size_t parts) {
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
    place.parent = walk(path, last);
    const HostError error =
        byAnyName(path.parts[last], place.name, [&] { return place.parent->stat(place.name, place.stat); });
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
    FolderNames& known = names();
    if (known.has(found.name)) return known.shortName(*found.parent, found.name);
    const auto own = known.find(*found.parent, path.parts[last]);
    return own ? known.shortName(*found.parent, *own) : std::nullopt;
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
