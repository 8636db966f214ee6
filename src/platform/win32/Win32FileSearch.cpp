#include "platform/win32/Win32FileSearch.h"

#include <cstring>

namespace zub {
namespace {

// A question mark stands in the name for a character that the code page lacks; no file can be reached by it.
const char* reachableName(const WIN32_FIND_DATAA& entry) {
  const bool lossy = std::strchr(entry.cFileName, '?') != nullptr;
  return lossy && entry.cAlternateFileName[0] != '\0' ? entry.cAlternateFileName : entry.cFileName;
}

}  // namespace

std::uint32_t seenAttributes(DWORD attributes) {
  const bool link = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return link ? attributes & ~DWORD{FILE_ATTRIBUTE_DIRECTORY} : attributes;
}

Win32FileSearch::Win32FileSearch(const char* pattern)
    : search_(FindFirstFileA(pattern, &entry_)), waiting_(any()) {}

Win32FileSearch::~Win32FileSearch() {
  if (any()) FindClose(search_);
}

bool Win32FileSearch::next(FoundFile& found) {
  if (!any() || (!waiting_ && FindNextFileA(search_, &entry_) == 0)) return false;
  waiting_ = false;
  const bool link = (entry_.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  found.name = reachableName(entry_);
  found.attributes = seenAttributes(entry_.dwFileAttributes);
  found.nFileSizeHigh = link ? 0 : entry_.nFileSizeHigh;
  found.nFileSizeLow = link ? 0 : entry_.nFileSizeLow;
  return true;
}

}  // namespace zub
