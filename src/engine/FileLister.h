// A folder, a pattern, and after a refresh the names of the matching files, without folders, sorted without
// regard to case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace zub {

class FileLister {
 public:
  enum class Hidden : std::uint8_t { Skip, Include };  // hidden and system files

  FileLister(const Platform& pc, std::string_view pattern, Hidden hidden)
      : pc_(pc), pattern_(pattern), hidden_(hidden) {}

  const std::string& path() const { return path_; }
  // Reads the folder. RuntimeError 76 where there is no such folder, as Files::find where it cannot be read;
  // then there are no names.
  void path(std::string_view folder);
  void pattern(std::string_view pattern) { pattern_ = pattern; }  // in force from the next refresh
  void refresh();
  const std::vector<std::string>& names() const { return names_; }

 private:
  const Platform& pc_;
  std::string path_;
  std::string pattern_;
  Hidden hidden_;
  std::vector<std::string> names_;
};

}  // namespace zub
