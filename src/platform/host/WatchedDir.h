// A host's folder that remembers what failed in it. Much of the program's logic takes a failure for "nothing
// there" and goes on, as it has to; who runs it is told afterwards.
#pragma once

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "platform/host/HostDir.h"

namespace zub {

// What could not be looked at, read or written, once each, with its path below the folder that is watched.
// Removals are not among it: their failures come back to whoever asked.
class HostFailures {
 public:
  void add(const std::string& path, std::string_view reason);
  // "C/WINDOWS/TEMP: Permission denied"
  const std::set<std::string>& texts() const { return texts_; }
  std::size_t more() const { return more_; }  // beyond those

 private:
  std::set<std::string> texts_;
  std::size_t more_ = 0;
};

// The same folder with everything below it. Both outlive it and what it opens.
std::unique_ptr<HostDir> watched(HostDir& folder, HostFailures& failures);
// The same for a folder that lies elsewhere and whose failures are told with this path.
std::unique_ptr<HostDir> watched(std::unique_ptr<HostDir> folder, std::string path, HostFailures& failures);

}  // namespace zub
