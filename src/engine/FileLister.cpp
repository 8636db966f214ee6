#include "engine/FileLister.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {

void FileLister::path(std::string_view folder) {
  names_.clear();
  if (!pc_.files->folderExists(folder)) throw RuntimeError(ErrorNumber::PathNotFound);
  path_ = folder;
  refresh();
}

void FileLister::refresh() {
  struct Name {
    std::string upper;
    std::string name;
  };
  names_.clear();
  std::vector<Name> found;
  const std::uint32_t unwanted =
      attribute::Directory | (hidden_ == Hidden::Skip ? attribute::Hidden | attribute::System : 0);
  if (!path_.empty() && !pattern_.empty()) {
    FoundFile file;
    const auto search = pc_.files->find(withBackslash(path_) + pattern_);
    while (search && search->next(file)) {
      if ((file.attributes & unwanted) == 0) found.push_back({pc_.codePage->upper(file.name), file.name});
    }
  }
  std::ranges::sort(found, {}, &Name::upper);
  names_.reserve(found.size());
  for (Name& name : found) names_.push_back(std::move(name.name));
}

}  // namespace zub
