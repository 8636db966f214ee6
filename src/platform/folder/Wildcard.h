// File name patterns as Windows understands them.
#pragma once

#include <string>
#include <string_view>

namespace zub {

// "*" is any text, "?" one character, or none before a dot and at the end; no regard to case. "*.*" is every
// name and "name.*" also "name". A dot at the end asks for a name without an extension; other dots and blanks
// at the end do not count. The empty pattern matches nothing.
class Wildcard {
 public:
  explicit Wildcard(std::string_view pattern);
  bool matches(std::string_view name) const;
  bool matchesEverything() const { return everything_; }

 private:
  std::string pattern_;  // folded
  bool everything_ = false;
  bool withoutExtension_ = false;
};

}  // namespace zub
