#include "platform/folder/FolderFiles.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderChannel.h"
#include "platform/folder/FolderSearch.h"
#include "platform/folder/HostFailure.h"
#include "platform/folder/HostText.h"

namespace zub {
namespace {

// Some hosts do not remove a read-only file.
void removeForced(HostDir& folder, const std::string& name) {
  HostError error = folder.removeFile(name);
  if (error == HostError::NoRights && folder.setReadOnly(name, false) == HostError::None) {
    error = folder.removeFile(name);
  }
  check(error);
}

bool isFolder(const FolderDisk::Place& place) {
  return place.exists && place.stat.kind == HostKind::Folder;
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

FolderDisk::Place FolderFiles::look(std::string_view path) {
  seenPath_.clear();
  return disk_.place(parse(path));
}

const FolderDisk::Place& FolderFiles::lookOn(std::string_view path) {
  if (seenPath_.empty() || seenPath_ != path) {
    seenPath_.clear();
    seenParts_ = parse(path);
    seen_ = placeOf(seenParts_);
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
void FolderFiles::checkWritable(const FolderPath& path, const Place& place) const {
  checkDrive(path.drive);
  if (place.exists && place.stat.kind == HostKind::Folder) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(path)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (place.exists && place.stat.readOnly) throw RuntimeError(ErrorNumber::PathFileAccess);
}

std::unique_ptr<FileSearch> FolderFiles::find(std::string_view path) {
  seenPath_.clear();
  const auto behindFolder = path.find_last_of("\\/:") + 1;
  const std::string_view folder = path.substr(0, behindFolder);
  try {
    const FolderPath parts = folder.empty() ? facts_.current : parse(folder);
    std::unique_ptr<HostList> listing;
    check(disk_.folder(parts).list(listing));
    auto search =
        std::make_unique<FolderSearch>(std::move(listing), path.substr(behindFolder), parts, facts_);
    if (!search->any()) return nullptr;
    return search;
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

std::uint32_t FolderFiles::attributes(std::string_view path) {
  seenPath_.clear();
  try {
    FolderPath parts = parse(path);
    const Place place = placeOf(parts);
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
  const Place place = placeOf(parts);
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
  const Place place = placeOf(parts);
  checkWritable(parts, place);
  if (place.exists && place.stat.kind != HostKind::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(replaceHostFile(*place.parent, place.name, bytes));
  if (!place.exists) disk_.forgetNames();
}

std::int64_t FolderFiles::openedLength(std::string_view path) {
  const Place& place = lookOn(path);
  checkWritable(seenParts_, place);
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

bool FolderFiles::fileExists(std::string_view path) {
  try {
    const Place place = look(path);
    return place.exists && !isFolder(place);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool FolderFiles::folderExists(std::string_view path) {
  try {
    return isFolder(look(path));
  } catch (const RuntimeError&) {
    return false;
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
  if (!isFolder(place)) throw RuntimeError(ErrorNumber::PathNotFound);
  checkDrive(parts.drive);
  if (parts.parts.empty()) throw RuntimeError(ErrorNumber::PathFileAccess);
  removeTree(*place.parent, place.name, parts);
}

// Depth first. What comes in while the tree goes is left to another round, as long as a round gets on. The
// folder is closed before it is removed, which some hosts need. `path` is the folder's own.
void FolderFiles::removeTree(HostDir& parent, const std::string& name, FolderPath& path) {
  HostError error = HostError::NotEmpty;
  for (bool removedSome = true; error == HostError::NotEmpty && removedSome;) {
    removedSome = removeContent(parent, name, path);
    error = parent.removeDir(name);
  }
  check(error);
  if (facts_.anyAttributes()) facts_.dropAttributes(path.key());
}

bool FolderFiles::removeContent(HostDir& parent, const std::string& name, FolderPath& path) {
  std::unique_ptr<HostDir> folder;
  std::unique_ptr<HostList> listing;
  check(parent.openDir(name, folder));
  check(folder->list(listing));
  bool removedSome = false;
  HostEntry entry;
  while (listing->next(entry)) {
    path.parts.push_back(ansiFromUtf8(entry.name));
    if (isLocked(path)) throw RuntimeError(ErrorNumber::PermissionDenied);
    if (entry.stat.kind == HostKind::Folder) {
      removeTree(*folder, entry.name, path);
    } else {
      removeForced(*folder, entry.name);
      if (facts_.anyAttributes()) facts_.dropAttributes(path.key());
    }
    path.parts.pop_back();
    removedSome = true;
  }
  check(listing->failure());
  return removedSome;
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
      result.parts.push_back(disk_.shortName(walked));
    }
    return result.text();
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace zub
