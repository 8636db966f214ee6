#include "platform/win32/Win32Error.h"

namespace zub {
namespace {

struct Row {
  DWORD systemError;
  ErrorNumber number;
};

constexpr Row table[] = {
    {ERROR_FILE_NOT_FOUND, ErrorNumber::FileNotFound},
    {ERROR_PATH_NOT_FOUND, ErrorNumber::PathNotFound},
    {ERROR_INVALID_DRIVE, ErrorNumber::PathNotFound},
    {ERROR_DIRECTORY, ErrorNumber::PathNotFound},
    {ERROR_BAD_NETPATH, ErrorNumber::PathNotFound},
    {ERROR_BAD_NET_NAME, ErrorNumber::PathNotFound},
    {ERROR_NO_MORE_FILES, ErrorNumber::FileNotFound},
    {ERROR_DELETE_PENDING, ErrorNumber::PermissionDenied},
    {ERROR_TOO_MANY_OPEN_FILES, ErrorNumber::TooManyFiles},
    {ERROR_ACCESS_DENIED, ErrorNumber::PathFileAccess},
    {ERROR_FILE_EXISTS, ErrorNumber::PathFileAccess},
    {ERROR_ALREADY_EXISTS, ErrorNumber::PathFileAccess},
    {ERROR_DIR_NOT_EMPTY, ErrorNumber::PathFileAccess},
    {ERROR_CURRENT_DIRECTORY, ErrorNumber::PathFileAccess},
    {ERROR_NETWORK_ACCESS_DENIED, ErrorNumber::PathFileAccess},
    {ERROR_PRIVILEGE_NOT_HELD, ErrorNumber::PathFileAccess},
    {ERROR_WRITE_PROTECT, ErrorNumber::PermissionDenied},
    {ERROR_SHARING_VIOLATION, ErrorNumber::PermissionDenied},
    {ERROR_LOCK_VIOLATION, ErrorNumber::PermissionDenied},
    {ERROR_USER_MAPPED_FILE, ErrorNumber::PermissionDenied},
    {ERROR_BUSY, ErrorNumber::PermissionDenied},
    {ERROR_NOT_READY, ErrorNumber::DiskNotReady},
    {ERROR_NO_MEDIA_IN_DRIVE, ErrorNumber::DiskNotReady},
    {ERROR_DISK_FULL, ErrorNumber::DiskFull},
    {ERROR_HANDLE_DISK_FULL, ErrorNumber::DiskFull},
    {ERROR_INVALID_NAME, ErrorNumber::BadFileName},
    {ERROR_BAD_PATHNAME, ErrorNumber::BadFileName},
};

}  // namespace

ErrorNumber errorNumberOf(DWORD systemError) {
  for (const Row& row : table) {
    if (row.systemError == systemError) return row.number;
  }
  return ErrorNumber::DeviceIo;
}

void throwLastError() {
  throw RuntimeError(errorNumberOf(GetLastError()));
}

}  // namespace zub
