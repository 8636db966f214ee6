#include "engine/FoundPaths.h"

namespace zub {

std::size_t WalkedFolders::add(std::size_t above, std::string_view name) {
  folders_.push_back({above, std::string(name)});
  return folders_.size();
}

const std::string& WalkedFolders::textOf(std::size_t folder) {
  if (known_ != Start && at(known_).above == folder) {
    text_.resize(text_.size() - at(known_).name.size() - 1);
    known_ = folder;
  }
  std::vector<std::size_t> missing;  // behind what is known, from the end
  std::size_t above = folder;
  for (; above != known_ && above != Start; above = at(above).above) missing.push_back(above);
  if (above != known_) text_ = start_;
  for (; !missing.empty(); missing.pop_back()) text_.append(at(missing.back()).name) += '\\';
  known_ = folder;
  return text_;
}

void FoundPaths::clear() {
  entries_.clear();
  walks_.clear();
}

void FoundPaths::add(const std::shared_ptr<WalkedFolders>& walk, std::size_t folder, std::string_view name) {
  if (walks_.empty() || walks_.back() != walk) walks_.push_back(walk);
  entries_.push_back({walk.get(), folder, std::string(name)});
}

std::string FoundPaths::operator[](std::size_t place) const {
  const Entry& entry = entries_[place];
  return entry.walk->textOf(entry.folder) + entry.name;
}

}  // namespace zub
