#include "platform/pretend/PretendFiles.h"

#include <algorithm>
#include <deque>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Wildcard.h"
#include "platform/pretend/PretendGrip.h"

namespace zub {
namespace {

bool isSeparator(char c) {
  return c == '\\' || c == '/';
}

// The path without separators at its end, but for a root's.
std::string_view withoutEnd(std::string_view path) {
  while (path.size() > 1 && isSeparator(path.back()) && path[path.size() - 2] != ':') path.remove_suffix(1);
  return path;
}

std::size_t behindFolder(std::string_view path) {
  return path.find_last_of("\\/:") + 1;
}

std::string_view trimmedName(std::string_view name) {
  return name.substr(0, name.find_last_not_of(". ") + 1);
}

// What a reset leaves of the attributes.
std::uint32_t cleared(std::uint32_t attributes) {
  const std::uint32_t kind = attributes & (attribute::Directory | attribute::Link);
  return kind != 0 ? kind : attribute::Normal;
}

// Byte for byte: enough for a wildcard, which compares units.
std::u16string units(std::string_view text) {
  std::u16string result;
  for (const char c : text) result += static_cast<unsigned char>(c);
  return result;
}

void setSize(FoundFile& found, std::int64_t size) {
  found.nFileSizeLow = static_cast<std::uint32_t>(size);
  found.nFileSizeHigh = static_cast<std::uint32_t>(size >> 32);
}

}  // namespace

// What lies beneath without what is gone or own, then the own ones.
class PretendFiles::Search : public FileSearch {
 public:
  Search(const PretendFiles& files, std::unique_ptr<FileSearch> beneath, const Folder* folder,
         std::deque<FoundFile> own)
      : files_(files), beneath_(std::move(beneath)), folder_(folder), own_(std::move(own)) {}

  // Whether there is anything; takes the first entry.
  bool any() {
    waiting_ = take(first_);
    return waiting_;
  }
  bool next(FoundFile& found) override {
    if (!waiting_) return take(found);
    waiting_ = false;
    found = first_;
    return true;
  }

 private:
  bool take(FoundFile& found) {
    while (beneath_ && beneath_->next(found)) {
      if (folder_ == nullptr) return true;
      const std::string key = files_.upper(found.name);
      if (folder_->gone.contains(key) || folder_->own.contains(key)) continue;
      if (folder_->reset.contains(key)) found.attributes = cleared(found.attributes);
      return true;
    }
    beneath_.reset();
    if (own_.empty()) return false;
    found = own_.front();
    own_.pop_front();
    return true;
  }

  const PretendFiles& files_;
  std::unique_ptr<FileSearch> beneath_;
  const Folder* folder_;
  std::deque<FoundFile> own_;
  FoundFile first_;
  bool waiting_ = false;
};

// A name with a "~" may be the 8.3 form of another one, which lies at this path beneath.
std::string PretendFiles::longName(std::string_view path, std::string_view name) {
  FoundFile found;
  const auto search = contains(name, "~") ? beneath_.find(path) : nullptr;
  return search && search->next(found) ? found.name : std::string(name);
}

// Finds out where a folder is and what is known of it. `folder` is told with its separator at the end.
const std::shared_ptr<const PretendFiles::Place>& PretendFiles::enter(std::string_view folder) {
  if (entered_ && !folder.empty() && enteredPath_ == folder) return entered_;
  Place place;
  const std::string current = systemFolders_.current();
  std::string path(folder);
  const bool withDrive = path.size() > 1 && path[1] == ':';
  if (!withDrive)
    path.insert(0, !path.empty() && isSeparator(path[0]) ? current.substr(0, 2) : withBackslash(current));
  if (withDrive && (path.size() == 2 || !isSeparator(path[2]))) {
    const bool onCurrent = upper(path.substr(0, 1)) == upper(current.substr(0, 1));
    path = (onCurrent ? withBackslash(current) : path.substr(0, 2) + '\\') + path.substr(2);
  }
  std::string told = path.substr(0, 2);
  place.path = told;
  place.key = upper(told);
  for (std::size_t begin = 2; begin < path.size();) {
    const std::size_t end = std::min(path.find_first_of("\\/", begin), path.size());
    const std::string_view part = trimmedName(std::string_view(path).substr(begin, end - begin));
    begin = end + 1;
    if (part.empty()) continue;
    told.append("\\").append(part);
    const std::string name = longName(told, part);
    place.path.append("\\").append(name);
    const std::string key = upper(name);
    const auto above = folders_.find(place.key);
    if (above != folders_.end()) {
      const auto own = above->second.own.find(key);
      const bool gone = above->second.gone.contains(key);
      if (gone) place.beneath = false;
      if (own != above->second.own.end() ? own->second.content != nullptr : gone) place.there = false;
    }
    place.key.append("\\").append(key);
  }
  place.beneath &= place.there;
  const auto known = folders_.find(place.key);
  if (known != folders_.end()) place.folder = &known->second;
  enteredPath_ = folder;
  entered_ = std::make_shared<const Place>(std::move(place));
  return entered_;
}

PretendFiles::Spot PretendFiles::locate(std::string_view path) {
  const bool namesFolder = !path.empty() && isSeparator(path.back());
  path = withoutEnd(path);
  const std::size_t behind = behindFolder(path);
  Spot spot;
  spot.in = enter(path.substr(0, behind));
  spot.folderThere = spot.in->there;
  spot.name = upper(longName(path, trimmedName(path.substr(behind))));
  if (Folder* folder = spot.in->folder) {
    const auto own = folder->own.find(spot.name);
    if (own != folder->own.end()) spot.own = &own->second;
    spot.gone = spot.own == nullptr && folder->gone.contains(spot.name);
  }
  if (namesFolder && spot.own != nullptr && spot.own->content) {  // which leads to no file
    spot.own = nullptr;
    spot.gone = true;
    spot.folderThere = false;
  }
  return spot;
}

PretendFiles::Folder& PretendFiles::changed(const Spot& spot) {
  ++changes_;
  if (spot.in->folder != nullptr) return *spot.in->folder;
  entered_.reset();
  Folder& folder = folders_[spot.in->key];
  folder.path = spot.in->path;
  return folder;
}

void PretendFiles::throwMissing(const Spot& spot) {
  throw RuntimeError(spot.folderThere ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound);
}

std::unique_ptr<FileSearch> PretendFiles::find(std::string_view path) {
  const std::size_t behind = behindFolder(path);
  const Place& place = *enter(path.substr(0, behind));
  auto beneath = place.beneath ? beneath_.find(path) : nullptr;
  if (place.folder == nullptr) return beneath;
  std::deque<FoundFile> own;
  const Wildcard pattern(units(upper(path.substr(behind))));
  for (const auto& [key, entry] : place.folder->own) {
    if (!pattern.matches(units(key))) continue;
    FoundFile found{entry.name, entry.content ? entry.attributes : attribute::Directory};
    if (entry.content) setSize(found, entry.content->length());
    own.push_back(found);
  }
  auto search = std::make_unique<Search>(*this, std::move(beneath), place.folder, std::move(own));
  if (!search->any()) return nullptr;
  return search;
}

std::uint32_t PretendFiles::attributes(std::string_view path) {
  const Spot spot = locate(path);
  if (spot.own != nullptr) return spot.own->content ? spot.own->attributes : attribute::Directory;
  if (!spot.asksBeneath()) return attribute::Invalid;
  const std::uint32_t bits = beneath_.attributes(path);
  return spot.isReset() && bits != attribute::Invalid ? cleared(bits) : bits;
}

// The file's own form, made for the first change of its content.
PretendFiles::Own& PretendFiles::writable(std::string_view path, const Spot& spot) {
  if (spot.own != nullptr) {
    if (!spot.own->content || (spot.own->attributes & attribute::ReadOnly) != 0)
      throw RuntimeError(ErrorNumber::PathFileAccess);
    return *spot.own;
  }
  Own own;
  own.name = withoutEnd(path).substr(behindFolder(withoutEnd(path)));
  own.content = std::make_shared<PretendContent>();
  own.attributes = attributes(path);
  if (own.attributes != attribute::Invalid) {
    if ((own.attributes & attribute::ReadOnly) != 0) throw RuntimeError(ErrorNumber::PathFileAccess);
    const std::int64_t length =
        beneath_.grip(path)->length(spot.isReset() ? ReadOnlyBit::Ignored : ReadOnlyBit::Counts);
    FoundFile found;
    if (const auto search = beneath_.find(path); search && search->next(found)) own.name = found.name;
    own.overBeneath = true;
    own.content = std::make_shared<PretendContent>(beneath_, std::string(path), length);
  } else {
    checkMakeable(path, spot);
    own.attributes = attribute::Archive;
  }
  return changed(spot).own[spot.name] = own;
}

std::unique_ptr<FileChannel> PretendFiles::open(std::string_view path, OpenMode mode) {
  const Spot spot = locate(path);
  if (mode == OpenMode::Input) {
    if (spot.asksBeneath()) return beneath_.open(path, mode);
    if (spot.own == nullptr) throwMissing(spot);
    if (!spot.own->content) throw RuntimeError(ErrorNumber::PathFileAccess);
    return std::make_unique<PretendChannel>(spot.own->content);
  }
  return std::make_unique<PretendChannel>(writable(path, spot).content);
}

void PretendFiles::replace(std::string_view path, std::string_view bytes) {
  const std::uint32_t bits = attributes(path);
  if (bits != attribute::Invalid && (bits & attribute::Link) != 0)
    throw RuntimeError(ErrorNumber::PathFileAccess);
  PretendContent& content = *writable(path, locate(path)).content;
  content.clear();
  content.write(0, bytes);
}

// The entry is gone from here on, beneath too if it is there.
void PretendFiles::takeOut(const Spot& spot, bool folder, std::int64_t length) {
  Folder& holder = changed(spot);
  const bool isBeneath =
      spot.own == nullptr || spot.own->overBeneath ||
      (folder && spot.in->beneath && beneath_.folderExists(spot.in->path + '\\' + spot.own->name));
  if (spot.own != nullptr) holder.own.erase(spot.name);
  holder.reset.erase(spot.name);
  if (!isBeneath) return;
  holder.gone.insert(spot.name);
  ++(folder ? removed_.folders : removed_.files);
  removed_.bytes += length;
}

bool PretendFiles::fileExists(std::string_view path) {
  const Spot spot = locate(path);
  if (spot.own != nullptr) return spot.own->content != nullptr;
  return spot.asksBeneath() && beneath_.fileExists(path);
}

bool PretendFiles::folderExists(std::string_view path) {
  const Spot spot = locate(path);
  if (spot.own != nullptr) return spot.own->content == nullptr;
  return spot.asksBeneath() && beneath_.folderExists(path);
}

// Fails where nothing can be made at the path, which leads nowhere so far.
void PretendFiles::checkMakeable(std::string_view path, const Spot& spot) {
  if (!spot.folderThere) throwMissing(spot);
  const std::string_view holder = path.substr(0, behindFolder(withoutEnd(path)));
  if (!holder.empty() && !folderExists(holder)) throw RuntimeError(ErrorNumber::PathNotFound);
  if (!spot.asksBeneath()) return;
  try {
    beneath_.open(path, OpenMode::Input);
  } catch (const RuntimeError& failure) {
    const bool onlyHere = failure.number() == ErrorNumber::PathNotFound && !beneath_.folderExists(holder);
    if (failure.number() != ErrorNumber::FileNotFound && !onlyHere) throw;  // no name or place for a file
  }
}

void PretendFiles::createFolder(std::string_view path) {
  path = withoutEnd(path);
  const Spot spot = locate(path);
  const bool there =
      spot.own != nullptr || (spot.asksBeneath() && beneath_.attributes(path) != attribute::Invalid);
  if (there) throw RuntimeError(ErrorNumber::PathFileAccess);
  checkMakeable(path, spot);
  changed(spot).own[spot.name].name = path.substr(behindFolder(path));
  entered_.reset();
}

void PretendFiles::deleteFolder(std::string_view path) {
  if (!folderExists(path) || isFolderLink(attributes(path))) throw RuntimeError(ErrorNumber::PathNotFound);
  if (locate(path).name.empty()) throw RuntimeError(ErrorNumber::PathFileAccess);
  std::unique_ptr<RuntimeError> failure;
  removeTree(std::string(withoutEnd(path)), failure);
  if (failure) throw RuntimeError(*failure);
}

// What cannot go stays, with the folders that it is in; the first failure is told.
void PretendFiles::removeTree(const std::string& path, std::unique_ptr<RuntimeError>& failure) {
  bool whole = true;
  const auto attempt = [&](auto removal) {
    try {
      removal();
    } catch (const RuntimeError& error) {
      whole = false;
      if (!failure) failure = std::make_unique<RuntimeError>(error);
    }
  };
  attempt([&] {
    std::vector<FoundFile> entries;
    FoundFile found;
    for (const auto search = find(path + "\\*"); search && search->next(found);) entries.push_back(found);
    for (const FoundFile& entry : entries) {
      const std::string child = path + '\\' + entry.name;
      attempt([&] {
        if (isFolder(entry.attributes)) {
          std::unique_ptr<RuntimeError> below;
          removeTree(child, below);
          if (below) throw RuntimeError(*below);
        } else {
          gripOf(child).take(Removal::EvenReadOnly);
        }
      });
    }
  });
  if (!whole) return;
  attempt([&] {
    gripOf(path).take(Removal::EmptyFolder);
    const Spot spot = locate(path);
    const std::string key = spot.in->key + '\\' + spot.name;
    folders_.erase(key);
    folders_.erase(folders_.lower_bound(key + '\\'), folders_.lower_bound(key + ']'));
    entered_.reset();
    ++changes_;
  });
}

std::string PretendFiles::shortPath(std::string_view path) {
  const Spot spot = locate(path);
  return spot.asksBeneath() || (spot.own != nullptr && spot.own->overBeneath) ? beneath_.shortPath(path) : "";
}

void PretendFiles::eachRemoved(const Tell& tell) {
  for (const auto& [key, folder] : folders_) {
    if (!folder.gone.empty()) tellGone(folder.path, &folder, tell);
  }
}

// What a folder held beneath; with `some`, only what is gone of it.
void PretendFiles::tellGone(const std::string& path, const Folder* some, const Tell& tell) {
  std::vector<FoundFile> entries;
  FoundFile found;
  for (const auto search = beneath_.find(path + "\\*"); search && search->next(found);) {
    const std::string key = some == nullptr ? std::string{} : upper(found.name);
    if (some == nullptr || (some->gone.contains(key) && !some->own.contains(key))) entries.push_back(found);
  }
  for (const FoundFile& entry : entries) {
    const std::string child = path + '\\' + entry.name;
    tell(isFolder(entry.attributes), child);
    if (isFolder(entry.attributes)) tellGone(child, nullptr, tell);
  }
}

}  // namespace zub
