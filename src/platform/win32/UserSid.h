// Who the user is to the NT family.
#pragma once

#include <string>

namespace zub {

// The user's security identifier as text; empty on the 9x family, which has none.
std::string userSid();

}  // namespace zub
