// The form of 8.3 names.
#pragma once

#include <string_view>

namespace zub {

// Up to eight characters and, behind a dot, up to three, none of them illegal in the old form. Case may vary.
bool isShortName(std::string_view name);

// "LONGNA~1.EXT", of another system also "LONG~X2F.EXT": made for a longer name, as far as its form tells.
bool isMadeShortName(std::string_view name);

}  // namespace zub
