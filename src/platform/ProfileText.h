// The text of a profile file: sections in brackets with "key=value" lines.
#pragma once

#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "platform/Files.h"

namespace zub {

// The text with this key of this section set, all other lines as they were. A missing section is added at the
// end, a missing key at the end of its section. Names are found without regard to case
// and keep their spelling.
std::string withProfileKey(std::string_view text, std::string_view section, std::string_view key,
                           std::string_view value, const CodePage& codePage);

// Sets the key in a profile file, made where it is missing; a file without a folder lies in the Windows folder. Failures
// are swallowed.
struct ProfileKey {
  std::string_view section;
  std::string_view key;
  std::string_view value;
};
void writeProfileKey(Files& files, const CodePage& codePage, const std::string& windows,
                     std::string_view file, const ProfileKey& entry);

}  // namespace zub
