// An enumeration of one folder by the system's own wildcards.
#pragma once

#include "platform/Files.h"
#include "platform/win32/WindowsHeader.h"

namespace zub {

// Attribute bits as the program sees them: a reparse point is no folder.
std::uint32_t seenAttributes(DWORD attributes);

class Win32FileSearch : public FileSearch {
 public:
  explicit Win32FileSearch(const char* pattern);
  Win32FileSearch(const Win32FileSearch&) = delete;
  Win32FileSearch& operator=(const Win32FileSearch&) = delete;
  ~Win32FileSearch() override;

  bool any() const { return search_ != INVALID_HANDLE_VALUE; }
  bool next(FoundFile& found) override;

 private:
  WIN32_FIND_DATAA entry_;
  HANDLE search_;
  bool waiting_;  // entry_ has not been told yet
};

}  // namespace zub
