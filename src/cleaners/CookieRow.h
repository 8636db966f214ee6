// A cookie in the lists of cookies, whichever browser it belongs to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "state/Lists.h"

namespace zub {

struct CookieRow {
  std::string shown;   // Internet Explorer: its site, or its file where the index names none; Netscape: its
                       // domain and a tab
  std::string detail;  // its file; for Netscape its whole line
  bool kept = false;
};
using CookieRows = std::vector<CookieRow>;

// The rows in two lists of a window, row beside row, and from them.
void showRows(const CookieRows& rows, ListRows& shown, ListRows& details);
CookieRows rowsOnShow(const ListRows& shown, const ListRows& details);

// The failure tells that there is no such file. A list that is missing is empty; one that is there and cannot
// be read is not.
bool isMissing(const RuntimeError& failure);

// Does the work on a file; its failure then tells which file it was.
template <class Work>
void onFile(std::string_view path, Work work) {
  try {
    work();
  } catch (const RuntimeError& failure) {
    throw RuntimeError(failure.number(), std::string(path) + ": " + failure.description());
  }
}

}  // namespace zub
