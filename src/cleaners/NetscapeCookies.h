// The lines of Netscape's cookie file and of the list of cookies to keep.
//
// A cookie is a line of fields with tabs between them: domain, flag, path, flag, expiry, name, value.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileReader.h"

namespace zub {

// False for blank lines, comments ("#") and lines without a tab.
bool isNetscapeCookie(std::string_view line);

// The domain with the tab behind it, of a line that is a cookie.
std::string_view netscapeDomain(std::string_view line);

// What a line that is a cookie is called and holds. The fields between domain and name are taken to be 24
// characters or so long: of a longer path the end is taken for the name.
struct NetscapeCookie {
  std::string_view name;  // with the tab behind it; empty where there is none
  std::string_view value;
};
NetscapeCookie nameAndValue(std::string_view line);

// The next field of a keep file, up to a comma or the end of the line; blanks, tabs and double quotes stay.
// False at the end of the file. CR LF counts as two ends with an empty field between, which names no cookie.
bool readKeepField(FileReader& file, std::string& field);

}  // namespace zub
