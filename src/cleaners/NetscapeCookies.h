// Netscape's profiles, their cookies and the lists of those to keep: ZUBKeepNS6.inf in a profile's folder, with
// domain, tab, name, tab, CR LF for each cookie. Reading writes nothing. What fails is a RuntimeError that
// names the file. The empty text as a folder is the root of the current drive.
//
// A cookie is a line of fields with tabs between them: domain, flag, path, flag, expiry, name, value.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "cleaners/CookieRow.h"
#include "platform/FileReader.h"

namespace zub {

class Engine;

struct NetscapeProfile {
  std::string name;
  std::string folder;
  bool readable = true;  // its cookie file could be opened
};

std::string netscapeRegistryFile(Engine& engine);
// The profiles that the browser's registry file names and that have a cookie file, each handed on as it is found.
void findNetscapeProfiles(Files& files, const std::string& registryFile,
                          const std::function<void(NetscapeProfile)>& found);

// Appends the cookies of a profile, none of them ticked.
void readNetscapeCookies(Files& files, std::string_view folder, CookieRows& rows);
// Ticks those that the keep list names, and clears none. A missing list ticks none.
void tickNetscapeKept(Files& files, std::string_view folder, CookieRows& rows);
// Writes the keep list, or the cookie file itself, anew from the ticked rows.
void saveNetscapeKeepList(Files& files, std::string_view folder, const CookieRows& rows);
void saveNetscapeCookies(Files& files, std::string_view folder, const CookieRows& rows);

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
