#include "platform/win32/FolderLink.h"

#include "platform/Files.h"

namespace zub {

std::uint32_t toldAttributes(DWORD attributes, bool link) {
  return link ? attributes | attribute::Link : attributes & ~attribute::Link;
}

HANDLE openFolderLink(const SystemPath& path, DWORD access, DWORD sharing) {
  const auto isFolderLink = [](DWORD attributes, DWORD tag) {
    return isLink(attributes, tag) && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  };
  const DWORD attributes = path.attributes();
  if (attributes != INVALID_FILE_ATTRIBUTES && isFolderLink(attributes, 0)) {
    const HANDLE file =
        path.open(access, sharing, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS);
    if (file == INVALID_HANDLE_VALUE) return file;
    BY_HANDLE_FILE_INFORMATION opened;
    if (GetFileInformationByHandle(file, &opened) != 0 &&
        isFolderLink(opened.dwFileAttributes, tagOf(file, opened.dwFileAttributes)))
      return file;
    CloseHandle(file);
  }
  SetLastError(ERROR_ACCESS_DENIED);
  return INVALID_HANDLE_VALUE;
}

bool removeFolderLink(const SystemPath& path) {
  const HANDLE link =
      openFolderLink(path, FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  if (link == INVALID_HANDLE_VALUE) return false;
  const bool removed = path.removeFolder();
  const DWORD failure = GetLastError();
  CloseHandle(link);
  SetLastError(failure);
  return removed;
}

}  // namespace zub
