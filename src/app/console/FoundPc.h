// What a registry tells of the PC that it was exported from.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace zub {

// One of the facts of pc.txt and where it comes from.
struct FoundFact {
  std::string value;  // empty for none
  std::string reason;
};

struct FoundPc {
  FoundFact family;
  FoundFact windows;
  FoundFact
      user;  // a branch of HKEY_USERS; none where HKEY_CURRENT_USER has its own text, or where nobody can tell
  FoundFact temp;
};

// `user` is the one that was chosen, or empty.
FoundPc findPc(Registry& registry, const std::string& user);

}  // namespace zub
