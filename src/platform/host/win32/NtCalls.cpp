#include "platform/host/win32/NtCalls.h"

#include <ntstatus.h>

#include "platform/host/win32/LoadedCall.h"

namespace zub {
namespace {

struct Row {
  NTSTATUS status;
  HostError error;
};

constexpr Row table[] = {
    {STATUS_OBJECT_NAME_NOT_FOUND, HostError::NotFound},
    {STATUS_OBJECT_PATH_NOT_FOUND, HostError::NotFound},
    {STATUS_NO_SUCH_FILE, HostError::NotFound},
    {STATUS_FILE_DELETED, HostError::NotFound},
    {STATUS_NOT_A_DIRECTORY, HostError::NotAFolder},
    {STATUS_FILE_IS_A_DIRECTORY, HostError::NotAFile},
    {STATUS_OBJECT_NAME_COLLISION, HostError::Exists},
    {STATUS_DIRECTORY_NOT_EMPTY, HostError::NotEmpty},
    {STATUS_ACCESS_DENIED, HostError::NoRights},
    {STATUS_CANNOT_DELETE, HostError::NoRights},
    {STATUS_PRIVILEGE_NOT_HELD, HostError::NoRights},
    {STATUS_SHARING_VIOLATION, HostError::InUse},
    {STATUS_FILE_LOCK_CONFLICT, HostError::InUse},
    {STATUS_DELETE_PENDING, HostError::InUse},
    {STATUS_USER_MAPPED_FILE, HostError::InUse},
    {STATUS_MEDIA_WRITE_PROTECTED, HostError::ReadOnlyDisk},
    {STATUS_DISK_FULL, HostError::DiskFull},
    {STATUS_QUOTA_EXCEEDED, HostError::DiskFull},
    {STATUS_TOO_MANY_OPENED_FILES, HostError::TooManyOpen},
    {STATUS_OBJECT_NAME_INVALID, HostError::BadName},
    {STATUS_OBJECT_PATH_SYNTAX_BAD, HostError::BadName},
    {STATUS_NAME_TOO_LONG, HostError::BadName},
};

template <class Call>
void load(Call& call, const char* name) {
  call = loadedCall<Call>("ntdll.dll", name);
}

}  // namespace

bool NtCalls::complete() const {
  return createFile != nullptr && queryInformation != nullptr && setInformation != nullptr &&
         queryDirectory != nullptr && read != nullptr && write != nullptr && flush != nullptr;
}

const NtCalls& nt() {
  static const NtCalls calls = [] {
    NtCalls loaded{};
    load(loaded.createFile, "NtCreateFile");
    load(loaded.queryInformation, "NtQueryInformationFile");
    load(loaded.setInformation, "NtSetInformationFile");
    load(loaded.queryDirectory, "NtQueryDirectoryFile");
    load(loaded.read, "NtReadFile");
    load(loaded.write, "NtWriteFile");
    load(loaded.flush, "NtFlushBuffersFile");
    return loaded;
  }();
  return calls;
}

HostError hostError(NTSTATUS status) {
  if (status >= 0) return HostError::None;
  for (const Row& row : table) {
    if (row.status == status) return row.error;
  }
  return HostError::DeviceFailure;
}

UNICODE_STRING unicodeText(std::wstring& text) {
  const auto bytes = static_cast<USHORT>(text.size() * sizeof(wchar_t));
  return {bytes, bytes, text.data()};
}

}  // namespace zub
