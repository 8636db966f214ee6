#include "support/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <random>
#include <stdexcept>

#include "platform/folder/HostText.h"

namespace zub {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  const char* told = std::getenv("ZUB_TEST_FOLDER");
  const fs::path parent = told != nullptr ? fs::path(told) : fs::temp_directory_path();
  std::random_device random;
  fs::path made;
  do {
    made = parent / ("zub-test-" + std::to_string(random()) + std::to_string(random()));
  } while (!fs::create_directory(made));
  path_ = made.string();
  dir_ = openHostDir(path_);
  if (!dir_) throw std::runtime_error("no temporary folder can be opened");
}

TempFolder::~TempFolder() {
  dir_.reset();
  std::error_code ignored;
  for (fs::recursive_directory_iterator entry(path_, ignored), end; entry != end; entry.increment(ignored)) {
    // Some hosts do not remove a read-only file.
    if (!entry->is_symlink()) fs::permissions(*entry, fs::perms::owner_write, fs::perm_options::add, ignored);
  }
  fs::remove_all(path_, ignored);
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
