// Internet Explorer's cookies and the list of those to keep: ZUBKeep.inf beside them, the texts of the kept
// rows, one a line, CR LF. Reading writes nothing. What fails is a RuntimeError that names the file.
#pragma once

#include <string>

#include "cleaners/CookieRow.h"

namespace zub {

class Engine;
struct Platform;

// As the registry tells it, and a backslash; where it tells none, the backslash alone.
std::string cookiesFolder(Engine& engine);
// The browser's index of its cookies.
std::string cookieIndexFile(const std::string& folder);

// Appends a row for each "*.txt" of the folder, those that the index names first, and ticks those that the
// keep list names. Only a name that the folder itself lists becomes a row, whatever the index says. A missing
// index or keep list is empty. A failure leaves the rows as far as they came.
void readIECookies(const Platform& pc, const std::string& folder, CookieRows& rows);

void saveIEKeepList(const Platform& pc, const std::string& folder, const CookieRows& rows);

}  // namespace zub
