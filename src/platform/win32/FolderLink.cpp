#include "platform/win32/FolderLink.h"

namespace zub {

HANDLE openFolderLink(const char* path, DWORD access, DWORD sharing) {
  constexpr DWORD link = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
  const DWORD attributes = GetFileAttributesA(path);
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & link) == link) {
    const HANDLE file = CreateFileA(path, access, sharing, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return file;
    BY_HANDLE_FILE_INFORMATION opened;
    if (GetFileInformationByHandle(file, &opened) != 0 && (opened.dwFileAttributes & link) == link)
      return file;
    CloseHandle(file);
  }
  SetLastError(ERROR_ACCESS_DENIED);
  return INVALID_HANDLE_VALUE;
}

bool removeFolderLink(const char* path) {
  const HANDLE point =
      openFolderLink(path, FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
  if (point == INVALID_HANDLE_VALUE) return false;
  const bool removed = RemoveDirectoryA(path) != 0;
  const DWORD failure = GetLastError();
  CloseHandle(point);
  SetLastError(failure);
  return removed;
}

}  // namespace zub
