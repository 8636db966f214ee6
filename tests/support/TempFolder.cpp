#include "support/TempFolder.h"

#include <cstdlib>
#include <random>
#include <stdexcept>

#include "platform/folder/HostText.h"

namespace zub {
namespace {

std::string tempParent() {
  for (const char* name : {"TMPDIR", "TEMP", "TMP"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return value;
  }
  return "/tmp";
}

void removeAll(HostDir& parent, const std::string& name) {
  std::unique_ptr<HostDir> folder;
  if (parent.openDir(name, folder) != HostError::None) return;
  std::unique_ptr<HostList> listing;
  if (folder->list(listing) == HostError::None) {
    HostEntry entry;
    while (listing->next(entry)) {
      if (entry.stat.kind == HostKind::Folder) {
        removeAll(*folder, entry.name);
      } else if (folder->removeFile(entry.name) == HostError::NoRights) {
        folder->setReadOnly(entry.name, false);
        folder->removeFile(entry.name);
      }
    }
  }
  listing.reset();
  folder.reset();
  parent.removeDir(name);
}

}  // namespace

TempFolder::TempFolder() : parent_(openHostDir(tempParent())) {
  if (!parent_) throw std::runtime_error("there is no temporary folder");
  std::random_device random;
  HostError made = HostError::Exists;
  while (made == HostError::Exists) {
    name_ = "zub-test-" + std::to_string(random()) + "-" + std::to_string(random());
    made = parent_->makeDir(name_);
  }
  if (made != HostError::None || parent_->openDir(name_, dir_) != HostError::None) {
    throw std::runtime_error("no temporary folder can be made");
  }
  path_ = tempParent() + "/" + name_;
}

TempFolder::~TempFolder() {
  dir_.reset();
  removeAll(*parent_, name_);
}

void writeHostFile(HostDir& folder, const std::string& name, std::string_view bytes) {
  std::unique_ptr<HostFile> file;
  if (folder.openFile(name, HostOpen::Empty, file) != HostError::None ||
      file->write(0, bytes) != HostError::None) {
    throw std::runtime_error("cannot write " + name);
  }
}

std::string readHostFile(HostDir& folder, const std::string& name) {
  return readHostText(folder, name).value_or("");
}

}  // namespace zub
