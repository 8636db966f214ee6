// An enumeration of one folder by the program's own wildcards.
#pragma once

#include "platform/Files.h"
#include "platform/Wildcard.h"
#include "platform/win32/SystemPath.h"

namespace zub {

class Win32FileSearch : public FileSearch {
 public:
  // What matches the pattern in a folder; the folder's path ends in a backslash or is empty. Throws where the
  // folder cannot be listed; a folder or a match that is missing is none.
  Win32FileSearch(std::string_view folder, std::string_view pattern);

  // There is a match at all.
  bool any() const { return waiting_; }
  bool next(FoundFile& found) override;

 private:
  struct Handle {
    Handle() = default;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() {
      if (handle != INVALID_HANDLE_VALUE) FindClose(handle);
    }
    HANDLE handle = INVALID_HANDLE_VALUE;
  };

  bool advance();
  bool matches() const;

  Wildcard pattern_;
  WIN32_FIND_DATAW entry_;
  Handle search_;
  bool waiting_ = false;  // entry_ is a match that has not been told yet
};

}  // namespace zub
