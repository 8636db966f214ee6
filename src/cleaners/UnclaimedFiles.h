// The files of a folder that no record of an index has claimed yet.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"

namespace zub {

class UnclaimedFiles {
 public:
  // The code page and the names outlive the object.
  UnclaimedFiles(const CodePage& codePage, const std::vector<std::string>& names);

  // Takes the first file of this name, without regard to case, off the files; false where none is left. As
  // quick with many files as with few.
  bool claim(std::string_view name);

  // The files that are left, in their order.
  template <class Use>
  void forEach(Use use) const {
    for (std::size_t file = 0; file < names_.size(); ++file) {
      if (!claimed_[file]) use(names_[file]);
    }
  }

 private:
  std::uint32_t& chainOf(const std::string& upper);

  const CodePage& codePage_;
  const std::vector<std::string>& names_;
  std::vector<std::string> upper_;
  // Each chain links the unclaimed files whose names share a hash, in their order.
  std::vector<std::uint32_t> chains_;
  std::vector<std::uint32_t> next_;
  std::vector<bool> claimed_;
};

}  // namespace zub
