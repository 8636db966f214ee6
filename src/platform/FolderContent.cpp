#include "platform/FolderContent.h"

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {
namespace {

void removeEntry(Files& files, const std::string& path, const FoundFile& found) {
  if (isFolder(found.attributes)) return files.deleteFolder(path);
  const auto file = files.grip(path);
  file->resetAttributes();
  file->remove();
}

bool emptyFolder(Files& files, const std::string& folder) {
  bool emptied = true;
  const auto search = files.find(JoinPath(folder, "*"));
  FoundFile found;
  while (search && search->next(found)) {
    try {
      removeEntry(files, JoinPath(folder, found.name), found);
    } catch (const RuntimeError&) {
      emptied = false;
    }
  }
  return emptied;
}

}  // namespace

bool emptyFolders(Files& files, const std::vector<std::string>& folders) {
  bool emptied = true;
  for (const std::string& folder : folders) {
    try {
      emptied &= emptyFolder(files, folder);
    } catch (const RuntimeError&) {
      emptied = false;
    }
  }
  return emptied;
}

}  // namespace zub
