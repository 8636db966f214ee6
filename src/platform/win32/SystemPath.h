// A path of the program as the file calls of this Windows want it, and these calls. On the NT family they are the
// wide ones, on the whole path, so that each told name leads to its own file and no length stops them; on the 9x
// family, which lacks them, the ANSI ones.
#pragma once

#include <string>
#include <string_view>

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

class SystemPath {
 public:
  // RuntimeError 52 for what can be no file: a NUL in the path, a device, a stand-in that no name can hold.
  explicit SystemPath(std::string_view path);

  // Ends in a backslash: only a folder is found by it.
  bool namesFolder() const { return namesFolder_; }
  bool isRoot() const;

  // As the system's calls of like names; the last error tells why one failed.
  DWORD attributes() const;
  bool setAttributes(DWORD attributes) const;
  HANDLE open(DWORD access, DWORD sharing, DWORD disposition, DWORD flags) const;
  bool removeFile() const;
  bool removeFolder() const;
  bool makeFolder() const;
  bool moveTo(const SystemPath& path) const;
  // Over an existing file; not on the 9x family.
  bool moveOver(const SystemPath& path) const;
  // Of what exists: the told path in its 8.3 form; empty where the system gives none.
  std::string shortPath() const;
  // Searches that begin with the first entry of this folder, or with what is at this path alone.
  HANDLE findInside(WIN32_FIND_DATAW& found) const;
  HANDLE findItself(WIN32_FIND_DATAW& found) const;

 private:
  std::wstring wide_;  // without the backslash at its end, but for a root
  std::string ansi_;   // on the 9x family only
  bool namesFolder_ = false;
};

// The next entry of a search; told by the wide record on both families.
bool findNext(HANDLE search, WIN32_FIND_DATAW& found);

}  // namespace zub
