#include "platform/folder/FolderTree.h"

#include <memory>

#include "platform/folder/CodePage1252.h"

namespace zub {

HostError FolderTree::remove(const std::string& name) {
  begin(name);
  while (!levels_.empty()) next();
  return result_;
}

// One step: the next folder in this one, or this one, once all of it has been tried.
void FolderTree::next() {
  Level& level = levels_.back();
  if (level.tried == level.folders.size()) return leave();
  const std::string name = level.folders[level.tried++];
  path_.parts.push_back(toldNameFromUtf8(name));
  if (isLocked()) return end(HostError::InUse);
  begin(name);
}

// Many folders are empty by now.
void FolderTree::begin(const std::string& name) {
  const HostError error = removeDir(name);
  if (error == HostError::None || error == HostError::NotAFolder) return end(error);
  levels_.push_back({name});
  enter(levels_.back());
}

// Removes the files of the folder and notes its folders.
void FolderTree::enter(Level& level) {
  level.kept = disk_.down(level.name);
  level.entered = level.kept == HostError::None;
  if (!level.entered) return;
  std::unique_ptr<HostList> listing;
  level.kept = disk_.here().list(listing);
  if (level.kept != HostError::None) return;
  HostEntry entry;
  while (listing->next(entry)) {
    if (entry.stat.kind == HostKind::Folder) {
      level.folders.push_back(entry.name);
      continue;
    }
    path_.parts.push_back(toldNameFromUtf8(entry.name));
    const HostError error = removeFile(entry.name);
    path_.parts.pop_back();
    if (error == HostError::None) level.removedSome = true;
    if (level.kept == HostError::None) level.kept = error;
  }
  if (level.kept == HostError::None) level.kept = listing->failure();
}

void FolderTree::leave() {
  const Level level = std::move(levels_.back());
  levels_.pop_back();
  if (level.entered) disk_.up();
  const HostError error = removeDir(level.name);
  if (level.kept == HostError::None && error == HostError::NotEmpty && level.removedSome) {
    levels_.push_back({level.name});
    return enter(levels_.back());
  }
  end(level.kept != HostError::None ? level.kept : error);
}

// What was tried last is done with.
void FolderTree::end(HostError error) {
  if (levels_.empty()) {
    result_ = error;
    return;
  }
  path_.parts.pop_back();
  Level& above = levels_.back();
  if (error == HostError::None) above.removedSome = true;
  if (above.kept == HostError::None) above.kept = error;
}

HostError FolderTree::removeFile(const std::string& name) {
  if (isLocked()) return HostError::InUse;
  const HostError error = disk_.here().removeFile(name);
  if (error == HostError::NotFound) return HostError::None;  // gone meanwhile
  if (error == HostError::None && facts_.anyAttributes()) facts_.dropAttributes(path_.key());
  return error;
}

HostError FolderTree::removeDir(const std::string& name) {
  const HostError error = disk_.here().removeDir(name);
  if (error == HostError::None && facts_.anyAttributes()) facts_.dropAttributes(path_.key());
  return error;
}

}  // namespace zub
