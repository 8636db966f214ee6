#include "platform/folder/FolderFiles.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderChannel.h"
#include "platform/folder/FolderSearch.h"
#include "platform/folder/HostText.h"
#include "platform/folder/ShortName.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

// Some hosts do not remove a read-only file.
HostError removeForced(HostDir& folder, const std::string& name) {
  const HostError error = folder.removeFile(name);
  if (error != HostError::NoRights || folder.setReadOnly(name, false) != HostError::None) return error;
  return folder.removeFile(name);
}

// What lies at one path.
class OneEntry : public FileSearch {
 public:
  explicit OneEntry(FoundFile entry) : entry_(std::move(entry)) {}
  bool next(FoundFile& found) override {
    if (std::exchange(told_, true)) return false;
    found = entry_;
    return true;
  }

 private:
  FoundFile entry_;
  bool told_ = false;
};

bool isFolder(const HostStat& stat) {
  return stat.kind == HostKind::Folder;
}
bool isFolderOrLink(const HostStat& stat) {
  return isFolder(stat) || stat.toFolder;
}

}  // namespace

void FolderFiles::forget() {
  seenPath_.clear();
  disk_.forget();
}

FolderPath FolderFiles::parse(std::string_view path) const {
  FolderPath parts;
  switch (parsePath(path, facts_.current, parts)) {
    case PathFault::None:
      return parts;
    case PathFault::NoNetwork:
      throw RuntimeError(ErrorNumber::PathNotFound);
    case PathFault::BadName:
      break;
  }
  throw RuntimeError(ErrorNumber::BadFileName);
}

FolderDisk::Place FolderFiles::placeOf(FolderPath& path) {
  Place place = disk_.place(path);
  if (place.exists && facts_.anyPaths()) path = disk_.pathOf(place);
  return place;
}

FolderDisk::Place FolderFiles::filePlaceOf(FolderPath& path) {
  const bool namesFolder = path.namesFolder;
  Place place = placeOf(path);
  const bool isFile = !place.exists || !isFolderOrLink(place.stat);
  if (isFile && namesFolder) throw RuntimeError(ErrorNumber::PathNotFound);
  return place;
}

std::optional<FolderDisk::Place> FolderFiles::look(std::string_view path) {
  seenPath_.clear();
  try {
    const FolderPath parts = parse(path);
    Place place = disk_.place(parts);
    if (place.exists && (!parts.namesFolder || isFolderOrLink(place.stat))) return place;
  } catch (const RuntimeError& failure) {
    if (!nothingThere(failure.number())) throw;
  }
  return std::nullopt;
}

const FolderDisk::Place& FolderFiles::lookOn(std::string_view path) {
  if (seenPath_.empty() || seenPath_ != path) {
    seenPath_.clear();
    seenParts_ = parse(path);
    seen_ = filePlaceOf(seenParts_);
    if (!seen_.exists) throw RuntimeError(ErrorNumber::FileNotFound);
    seenPath_ = path;
  }
  return seen_;
}

bool FolderFiles::isLocked(const FolderPath& path) const {
  return !facts_.locked.empty() && facts_.locked.contains(path.key());
}

void FolderFiles::checkDrive(char drive) const {
  if (facts_.readOnlyDrives.contains(drive)) throw RuntimeError(ErrorNumber::PermissionDenied);
}

// For a file that is to be written or removed.
void FolderFiles::checkWritable(const FolderPath& path, const Place& place, ReadOnlyBit bit) const {
  checkDrive(path.drive);
  if (place.exists && place.stat.kind == HostKind::Folder) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(path)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (place.exists && place.stat.readOnly && bit == ReadOnlyBit::Counts)
    throw RuntimeError(ErrorNumber::PathFileAccess);
}

std::unique_ptr<FileSearch> FolderFiles::find(std::string_view path) {
  seenPath_.clear();
  const auto behindFolder = path.find_last_of("\\/:") + 1;
  const std::string_view folder = path.substr(0, behindFolder);
  const std::string_view pattern = path.substr(behindFolder);
  try {
    // An 8.3 name is found as in any path.
    if (isMadeShortName(pattern)) return findEntry(path);
    const FolderPath parts = folder.empty() ? facts_.current : parse(folder);
    std::unique_ptr<HostList> listing;
    check(disk_.folder(parts).list(listing));
    auto search = std::make_unique<FolderSearch>(std::move(listing), pattern, parts, facts_);
    if (!search->any()) return nullptr;
    return search;
  } catch (const RuntimeError& failure) {
    if (nothingThere(failure.number())) return nullptr;
    throw;
  }
}

std::unique_ptr<FileSearch> FolderFiles::findEntry(std::string_view path) {
  const FolderPath parts = parse(path);
  const Place place = disk_.place(parts);
  if (!place.exists || parts.parts.empty()) return nullptr;
  const FolderPath told = disk_.pathOf(place);
  FoundFile found{told.parts.back(), attributesOf(place.stat, told, facts_)};
  found.nFileSizeHigh = static_cast<std::uint32_t>(place.stat.size >> 32);
  found.nFileSizeLow = static_cast<std::uint32_t>(place.stat.size);
  return std::make_unique<OneEntry>(std::move(found));
}

std::uint32_t FolderFiles::attributes(std::string_view path) {
  seenPath_.clear();
  try {
    FolderPath parts = parse(path);
    const Place place = filePlaceOf(parts);
    return place.exists ? attributesOf(place.stat, parts, facts_) : attribute::Invalid;
  } catch (const RuntimeError&) {
    return attribute::Invalid;
  }
}

void FolderFiles::resetAttributes(std::string_view path) {
  seenPath_.clear();
  try {
    lookOn(path);
  } catch (const RuntimeError& failure) {
    const ErrorNumber number = failure.number();
    const bool missing = number == ErrorNumber::PathNotFound || number == ErrorNumber::BadFileName;
    if (missing) throw RuntimeError(ErrorNumber::FileNotFound);
    throw;
  }
  checkDrive(seenParts_.drive);
  if (seen_.stat.readOnly) {
    check(seen_.parent->setReadOnly(seen_.name, false));
    seen_.stat.readOnly = false;
  }
  if (facts_.anyAttributes()) facts_.dropAttributes(seenParts_.key());
}

std::unique_ptr<FileChannel> FolderFiles::open(std::string_view path, OpenMode mode) {
  seenPath_.clear();
  FolderPath parts = parse(path);
  const Place place = filePlaceOf(parts);
  const bool writes = mode != OpenMode::Input;
  if (writes) checkWritable(parts, place);
  if (!writes && !place.exists) throw RuntimeError(ErrorNumber::FileNotFound);
  if (place.exists && place.stat.kind != HostKind::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(parts)) throw RuntimeError(ErrorNumber::PermissionDenied);
  const HostOpen how = writes ? HostOpen::Make : HostOpen::Read;
  std::unique_ptr<HostFile> file;
  check(place.parent->openFile(place.name, how, file));
  if (!place.exists) disk_.forgetNames();
  return std::make_unique<FolderChannel>(std::move(file), writes);
}

void FolderFiles::replace(std::string_view path, std::string_view bytes) {
  seenPath_.clear();
  FolderPath parts = parse(path);
  const Place place = filePlaceOf(parts);
  checkWritable(parts, place);
  if (place.exists && place.stat.kind != HostKind::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(replaceHostFile(*place.parent, place.name, bytes));
  if (!place.exists) disk_.forgetNames();
}

std::int64_t FolderFiles::openedLength(std::string_view path, ReadOnlyBit bit) {
  const Place& place = lookOn(path);
  checkWritable(seenParts_, place, bit);
  return static_cast<std::int64_t>(place.stat.size);
}

void FolderFiles::remove(std::string_view path) {
  const Place& place = lookOn(path);
  checkWritable(seenParts_, place);
  const HostError error = place.parent->removeFile(place.name);
  seenPath_.clear();
  if (error == HostError::None && facts_.anyAttributes()) facts_.dropAttributes(seenParts_.key());
  if (error == HostError::NotFound) disk_.forget();
  check(error);
}

std::int64_t FolderFiles::removable(std::string_view path, Removal how) {
  const Place& place = lookOn(path);
  checkDrive(seenParts_.drive);
  if (isFolder(place.stat) != (how == Removal::EmptyFolder)) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(seenParts_)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (place.stat.readOnly && how == Removal::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(place.parent->mayRemove(place.name));
  return static_cast<std::int64_t>(place.stat.size);
}

bool FolderFiles::fileExists(std::string_view path) {
  try {
    const auto place = look(path);
    return place && !isFolderOrLink(place->stat);
  } catch (const RuntimeError&) {
    return true;
  }
}

bool FolderFiles::folderExists(std::string_view path) {
  try {
    const auto place = look(path);
    return place && isFolderOrLink(place->stat);
  } catch (const RuntimeError&) {
    return true;
  }
}

void FolderFiles::createFolder(std::string_view path) {
  seenPath_.clear();
  const FolderPath parts = parse(path);
  const Place place = disk_.place(parts);
  checkDrive(parts.drive);
  if (place.exists) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(place.parent->makeDir(place.name));
  disk_.forgetNames();
}

void FolderFiles::deleteFolder(std::string_view path) {
  seenPath_.clear();
  FolderPath parts;
  if (parsePath(path, facts_.current, parts) != PathFault::None)
    throw RuntimeError(ErrorNumber::PathNotFound);
  const Place place = placeOf(parts);
  if (!place.exists || !isFolder(place.stat)) throw RuntimeError(ErrorNumber::PathNotFound);
  checkDrive(parts.drive);
  if (parts.parts.empty()) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(removeTree(*place.parent, place.name, parts));
}

// Depth first. What comes in while the tree goes is left to another round, as long as a round gets on. The
// folder is closed before it is removed, which some hosts need. `path` is the folder's own.
HostError FolderFiles::removeTree(HostDir& parent, const std::string& name, FolderPath& path) {
  HostError kept = HostError::None;
  HostError error = HostError::NotEmpty;
  for (bool removedSome = true; kept == HostError::None && error == HostError::NotEmpty && removedSome;) {
    kept = removeContent(parent, name, path, removedSome);
    error = parent.removeDir(name);
  }
  if (error == HostError::None && facts_.anyAttributes()) facts_.dropAttributes(path.key());
  return kept != HostError::None ? kept : error;
}

HostError FolderFiles::removeContent(HostDir& parent, const std::string& name, FolderPath& path,
                                     bool& removedSome) {
  std::unique_ptr<HostDir> folder;
  std::unique_ptr<HostList> listing;
  removedSome = false;
  HostError kept = parent.openDir(name, folder);
  if (kept == HostError::None) kept = folder->list(listing);
  if (kept != HostError::None) return kept;
  HostEntry entry;
  while (listing->next(entry)) {
    path.parts.push_back(toldNameFromUtf8(entry.name));
    const HostError error = removeEntry(*folder, entry, path);
    path.parts.pop_back();
    if (error == HostError::None) removedSome = true;
    if (kept == HostError::None) kept = error;
  }
  return kept != HostError::None ? kept : listing->failure();
}

HostError FolderFiles::removeEntry(HostDir& folder, const HostEntry& entry, FolderPath& path) {
  if (isLocked(path)) return HostError::InUse;
  if (entry.stat.kind == HostKind::Folder) return removeTree(folder, entry.name, path);
  const HostError error = removeForced(folder, entry.name);
  if (error == HostError::NotFound) return HostError::None;  // gone meanwhile
  if (error == HostError::None && facts_.anyAttributes()) facts_.dropAttributes(path.key());
  return error;
}

std::string FolderFiles::shortPath(std::string_view path) {
  seenPath_.clear();
  try {
    const FolderPath parts = parse(path);
    if (!disk_.place(parts).exists) return {};
    FolderPath result{parts.drive, {}};
    FolderPath walked{parts.drive, {}};
    for (const std::string& part : parts.parts) {
      walked.parts.push_back(part);
      const std::string name = disk_.shortName(walked);
      const bool raised = facts_.family->raisesShortNames && isShortName(name);
      result.parts.push_back(raised ? folded(name) : name);
    }
    return result.text();
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace zub
