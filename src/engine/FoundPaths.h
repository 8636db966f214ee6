// What a walk through folders has found. A path is kept as a name and the folder that it is in, so that the paths of a
// deep tree do not each hold all of it.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zub {

// The folders of one walk.
class WalkedFolders {
 public:
  static constexpr std::size_t Start = 0;  // where the walk began

  // `start` ends in a backslash.
  explicit WalkedFolders(std::string start) : start_(std::move(start)), text_(start_) {}

  // The number of a folder in another one.
  std::size_t add(std::size_t above, std::string_view name);
  // Its path with a backslash at its end. Good until the next call.
  const std::string& textOf(std::size_t folder);

 private:
  struct Folder {
    std::size_t above;
    std::string name;
  };
  const Folder& at(std::size_t folder) const { return folders_[folder - 1]; }

  std::string start_;
  std::vector<Folder> folders_;
  // The folder that was asked for last: the next one is it, one in it or the one above, as a rule.
  std::size_t known_ = Start;
  std::string text_;
};

// A list of paths, also of several walks: a wash inside another one's clears the list and fills it anew.
class FoundPaths {
 public:
  void clear();
  void add(const std::shared_ptr<WalkedFolders>& walk, std::size_t folder, std::string_view name);

  std::size_t size() const { return entries_.size(); }
  bool empty() const { return entries_.empty(); }
  std::string operator[](std::size_t place) const;

 private:
  struct Entry {
    WalkedFolders* walk;
    std::size_t folder;
    std::string name;
  };
  std::vector<Entry> entries_;
  std::vector<std::shared_ptr<WalkedFolders>> walks_;  // of the entries
};

}  // namespace zub
