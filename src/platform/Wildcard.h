// File name patterns as Windows understands them.
#pragma once

#include <string>
#include <string_view>

namespace zub {

// "*" is any text, "?" one character, or none before a dot and at the end; no regard to case. "*.*" is every
// name and "name.*" also "name"; a star before a dot stops at the name's last dot, so that "*.???" is names without an
// extension or with one of at most three characters. A dot at the end asks for a name without an extension; other dots and blanks
// at the end do not count. The empty pattern matches nothing. Pattern and names come in upper case, in UTF-16.
class Wildcard {
 public:
  explicit Wildcard(std::u16string_view pattern);
  bool matches(std::u16string_view name) const;
  bool matchesEverything() const { return everything_; }

 private:
  std::u16string pattern_;
  bool everything_ = false;
  bool withoutExtension_ = false;
};

}  // namespace zub
