// Faults that a test has ordered: calls that fail as told instead of doing their work.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/CodePage1252.h"

namespace zub {

template <class Call, class Failure>
class Faults {
 public:
  void onPath(Call call, std::string_view path, Failure failure) {
    paths_.push_back({call, std::string(path), failure});
  }
  // The n-th such call from now, once.
  void nth(Call call, int n, Failure failure) { counted_.push_back({call, n, failure}); }
  void clear() {
    paths_.clear();
    counted_.clear();
  }
  bool any() const { return !paths_.empty() || !counted_.empty(); }

  // The failure of this call, if it is to fail. Counts it.
  std::optional<Failure> of(Call call, std::string_view path) {
    std::optional<Failure> result;
    for (Counted& fault : counted_) {
      if (fault.call == call && --fault.left == 0) result = fault.failure;
    }
    for (const OnPath& fault : paths_) {
      if (fault.call == call && equalFolded(fault.path, path)) result = fault.failure;
    }
    return result;
  }

 private:
  struct OnPath {
    Call call;
    std::string path;
    Failure failure;
  };
  struct Counted {
    Call call;
    int left;
    Failure failure;
  };
  std::vector<OnPath> paths_;
  std::vector<Counted> counted_;
};

}  // namespace zub
