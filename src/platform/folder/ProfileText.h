// The text of a profile file: sections in brackets with "key=value" lines.
#pragma once

#include <string>
#include <string_view>

namespace zub {

// The text with this key of this section set, all other lines as they were. A missing section is added at the
// end, a missing key at the end of its section. Names are found without regard to case
// and keep their spelling.
std::string withProfileKey(std::string_view text, std::string_view section, std::string_view key,
                           std::string_view value);

}  // namespace zub
