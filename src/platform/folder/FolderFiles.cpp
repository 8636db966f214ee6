#include "platform/folder/FolderFiles.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderChannel.h"
#include "platform/folder/FolderSearch.h"
#include "platform/folder/FolderTree.h"
#include "platform/folder/HostText.h"
#include "platform/folder/ShortName.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

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

bool namesFolder(std::string_view path) {
  return path.ends_with('\\') || path.ends_with('/');
}

}  // namespace

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

FolderFiles::Found FolderFiles::locate(std::string_view path) {
  Found found;
  if (auto place = disk_.placeFromLast(path)) {
    found.place = std::move(*place);
    found.path.drive = disk_.drive();
  } else {
    found.path = parse(path);
    found.place = disk_.place(found.path);
    disk_.foundIn(path.substr(0, path.rfind('\\') + 1));
  }
  if (found.place.exists && facts_.anyPaths()) found.path = disk_.pathOf(found.place);
  return found;
}

FolderFiles::Found FolderFiles::locateFile(std::string_view path) {
  Found found = locate(path);
  const bool isFile = !found.place.exists || !isFolderOrLink(found.place.stat);
  if (isFile && namesFolder(path)) throw RuntimeError(ErrorNumber::PathNotFound);
  return found;
}

std::optional<FolderDisk::Place> FolderFiles::look(std::string_view path) {
  try {
    Found found = locate(path);
    if (found.place.exists && (!namesFolder(path) || isFolderOrLink(found.place.stat))) return found.place;
  } catch (const RuntimeError& failure) {
    if (!nothingThere(failure.number())) throw;
  }
  return std::nullopt;
}

bool FolderFiles::isLocked(const FolderPath& path) const {
  return !facts_.locked.empty() && facts_.locked.contains(path.key());
}

void FolderFiles::checkDrive(char drive) const {
  if (facts_.readOnlyDrives.contains(drive)) throw RuntimeError(ErrorNumber::PermissionDenied);
}

// For a file that is to be written or removed.
void FolderFiles::checkWritable(const Found& found, ReadOnlyBit bit) const {
  const auto& [place, path] = found;
  checkDrive(path.drive);
  if (place.exists && place.stat.kind == HostKind::Folder) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(path)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (place.exists && place.stat.readOnly && bit == ReadOnlyBit::Counts)
    throw RuntimeError(ErrorNumber::PathFileAccess);
}

std::unique_ptr<FileSearch> FolderFiles::find(std::string_view path) {
  const auto behindFolder = path.find_last_of("\\/:") + 1;
  const std::string_view text = path.substr(0, behindFolder);
  const std::string_view pattern = path.substr(behindFolder);
  try {
    // An 8.3 name is found as in any path.
    if (isMadeShortName(pattern)) return findEntry(path);
    HostDir* folder = disk_.folderFromLast(text);
    if (folder == nullptr) {
      folder = &disk_.folder(text.empty() ? facts_.current : parse(text));
      disk_.foundIn(text);
    }
    std::unique_ptr<HostList> listing;
    check(folder->list(listing));
    std::string key;
    if (facts_.anyAttributes()) {
      key = disk_.pathOf({}).key();
      if (!key.ends_with('\\')) key += '\\';
    }
    auto search = std::make_unique<FolderSearch>(std::move(listing), pattern, std::move(key), facts_);
    if (!search->any()) return nullptr;
    return search;
  } catch (const RuntimeError& failure) {
    if (nothingThere(failure.number())) return nullptr;
    throw;
  }
}

std::unique_ptr<FileSearch> FolderFiles::findEntry(std::string_view path) {
  const Place place = locate(path).place;
  if (!place.exists || place.parent == nullptr) return nullptr;
  const FolderPath told = disk_.pathOf(place);
  FoundFile found{told.parts.back(), attributesOf(place.stat, told.key(), facts_)};
  found.nFileSizeHigh = static_cast<std::uint32_t>(place.stat.size >> 32);
  found.nFileSizeLow = static_cast<std::uint32_t>(place.stat.size);
  return std::make_unique<OneEntry>(std::move(found));
}

std::uint32_t FolderFiles::attributes(std::string_view path) {
  try {
    const auto [place, told] = locateFile(path);
    const std::string key = facts_.anyAttributes() ? told.key() : std::string();
    return place.exists ? attributesOf(place.stat, key, facts_) : attribute::Invalid;
  } catch (const RuntimeError&) {
    return attribute::Invalid;
  }
}

// By the open folder and the name in it.
class FolderFiles::Grip : public FileGrip {
 public:
  Grip(FolderFiles& files, Found found) : files_(files), found_(std::move(found)) {}

  std::uint32_t attributes() override {
    const PcFacts& facts = files_.facts_;
    return attributesOf(found_.place.stat, facts.anyAttributes() ? found_.path.key() : std::string(), facts);
  }
  void resetAttributes() override {
    files_.checkDrive(found_.path.drive);
    HostStat& stat = found_.place.stat;
    if (stat.readOnly) check(found_.place.parent->setReadOnly(found_.place.name, false));
    stat.readOnly = false;
    dropAttributes();
  }
  std::int64_t length(ReadOnlyBit bit) override {
    files_.checkWritable(found_, bit);
    return static_cast<std::int64_t>(found_.place.stat.size);
  }
  std::unique_ptr<FileChannel> open() override {
    files_.checkWritable(found_);
    std::unique_ptr<HostFile> file;
    check(found_.place.parent->openFile(found_.place.name, HostOpen::ReadWrite, file));
    return std::make_unique<FolderChannel>(std::move(file), true);
  }
  std::int64_t removable(Removal how) override {
    const auto& [place, path] = found_;
    files_.checkDrive(path.drive);
    if (isFolder(place.stat) != (how == Removal::EmptyFolder))
      throw RuntimeError(ErrorNumber::PathFileAccess);
    if (files_.isLocked(path)) throw RuntimeError(ErrorNumber::PermissionDenied);
    if (place.stat.readOnly && how == Removal::File) throw RuntimeError(ErrorNumber::PathFileAccess);
    check(place.parent->mayRemove(place.name));
    return static_cast<std::int64_t>(place.stat.size);
  }
  void remove() override {
    files_.checkWritable(found_);
    check(found_.place.parent->removeFile(found_.place.name));
    dropAttributes();
  }

 private:
  void dropAttributes() {
    if (files_.facts_.anyAttributes()) files_.facts_.dropAttributes(found_.path.key());
  }

  FolderFiles& files_;
  Found found_;
};

std::unique_ptr<FileGrip> FolderFiles::grip(std::string_view path) {
  try {
    Found found = locateFile(path);
    if (found.place.exists) return std::make_unique<Grip>(*this, std::move(found));
  } catch (const RuntimeError& failure) {
    const ErrorNumber number = failure.number();
    if (number != ErrorNumber::PathNotFound && number != ErrorNumber::BadFileName) throw;
  }
  throw RuntimeError(ErrorNumber::FileNotFound);
}

std::unique_ptr<FileChannel> FolderFiles::open(std::string_view path, OpenMode mode) {
  const Found found = locateFile(path);
  const Place& place = found.place;
  const bool writes = mode != OpenMode::Input;
  if (writes) checkWritable(found);
  if (!writes && !place.exists) throw RuntimeError(ErrorNumber::FileNotFound);
  if (place.exists && place.stat.kind != HostKind::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  if (isLocked(found.path)) throw RuntimeError(ErrorNumber::PermissionDenied);
  const HostOpen how = writes ? HostOpen::Make : HostOpen::Read;
  std::unique_ptr<HostFile> file;
  check(place.parent->openFile(place.name, how, file));
  if (!place.exists) disk_.forgetNames();
  return std::make_unique<FolderChannel>(std::move(file), writes);
}

void FolderFiles::replace(std::string_view path, std::string_view bytes) {
  const Found found = locateFile(path);
  const Place& place = found.place;
  checkWritable(found);
  if (place.exists && place.stat.kind != HostKind::File) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(replaceHostFile(*place.parent, place.name, bytes));
  if (!place.exists) disk_.forgetNames();
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
  const auto [place, told] = locate(path);
  checkDrive(told.drive);
  if (place.exists) throw RuntimeError(ErrorNumber::PathFileAccess);
  check(place.parent->makeDir(place.name));
  disk_.forgetNames();
}

void FolderFiles::deleteFolder(std::string_view path) {
  Found found;
  try {
    found = locate(path);
  } catch (const RuntimeError& failure) {
    if (failure.number() == ErrorNumber::BadFileName) throw RuntimeError(ErrorNumber::PathNotFound);
    throw;
  }
  const Place& place = found.place;
  if (!place.exists || !isFolder(place.stat)) throw RuntimeError(ErrorNumber::PathNotFound);
  checkDrive(found.path.drive);
  if (place.parent == nullptr) throw RuntimeError(ErrorNumber::PathFileAccess);
  HostError error = HostError::None;
  try {
    error = FolderTree(disk_, facts_, std::move(found.path)).remove(place.name);
  } catch (...) {
    disk_.forget();
    throw;
  }
  check(error);
}

std::string FolderFiles::shortPath(std::string_view path) {
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
