#include "platform/win32/Win32FileChannel.h"

#include <utility>

#include "platform/win32/FolderLink.h"
#include "platform/win32/Text.h"
#include "platform/win32/Win32Error.h"

namespace zub {
namespace {

constexpr std::size_t KeptAtMost = 65536;

struct UseRow {
  DWORD access;
  DWORD sharing;
  DWORD disposition;
};

constexpr DWORD Everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// By FileUse.
constexpr UseRow uses[] = {
    {GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS},
    {GENERIC_READ | GENERIC_WRITE, 0, OPEN_EXISTING},
    {GENERIC_READ, Everything, OPEN_EXISTING},
    {GENERIC_READ | FILE_WRITE_ATTRIBUTES, 0, OPEN_EXISTING},
};

// A file that its disk keeps in another way, deduplicated or in a cloud: by a reparse point that is no link.
bool isKeptElsewhere(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION facts;
  return GetFileInformationByHandle(file, &facts) != 0 &&
         (facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         !isLink(facts.dwFileAttributes, tagOf(file, facts.dwFileAttributes));
}

}  // namespace

// The 9x family has no reparse points and no right to attributes, and refuses a call that shares the removal.
HANDLE openFile(const SystemPath& path, FileUse use) {
  const UseRow& row = uses[static_cast<std::size_t>(use)];
  const bool nt = isNtFamily();
  const DWORD access = nt ? row.access : row.access & (GENERIC_READ | GENERIC_WRITE);
  const DWORD sharing = nt ? row.sharing : row.sharing & ~static_cast<DWORD>(FILE_SHARE_DELETE);
  const DWORD itself = nt ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
  HANDLE file = path.open(access, sharing, row.disposition, FILE_ATTRIBUTE_NORMAL | itself);
  if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_ACCESS_DENIED)
    file = openFolderLink(path, access, sharing);
  if (file == INVALID_HANDLE_VALUE) throwLastError();
  if (!isKeptElsewhere(file)) return file;
  CloseHandle(file);
  file = path.open(access, sharing, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL);
  if (file == INVALID_HANDLE_VALUE) throwLastError();
  return file;
}

std::int64_t lengthOf(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION facts;
  if (GetFileInformationByHandle(file, &facts) == 0) throwLastError();
  if (isLink(facts.dwFileAttributes, tagOf(file, facts.dwFileAttributes))) return 0;
  return static_cast<std::int64_t>(facts.nFileSizeHigh) << 32 | facts.nFileSizeLow;
}

Win32FileChannel::~Win32FileChannel() {
  finish();
}

std::int64_t Win32FileChannel::length() {
  flush();
  return lengthOf(file_);
}

void Win32FileChannel::seek(std::int64_t offset) {
  flush();
  LONG high = static_cast<LONG>(offset >> 32);
  const DWORD low = SetFilePointer(file_, static_cast<LONG>(offset), &high, FILE_BEGIN);
  if (low == INVALID_SET_FILE_POINTER && GetLastError() != NO_ERROR) throwLastError();
}

std::size_t Win32FileChannel::read(std::span<char> buffer) {
  flush();
  DWORD count = 0;
  if (ReadFile(file_, buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr) == 0)
    throwLastError();
  return count;
}

void Win32FileChannel::write(std::string_view bytes) {
  if (kept_.size() + bytes.size() > KeptAtMost) flush();
  if (bytes.size() < KeptAtMost)
    kept_.append(bytes);
  else if (!give(bytes))
    throwLastError();
}

void Win32FileChannel::close() {
  if (!finish()) throwLastError();
}

void Win32FileChannel::sync() {
  flush();
  if (FlushFileBuffers(file_) == 0) throwLastError();
}

// Gives bytes to the system. False, with the last error set, where it does not take them all.
bool Win32FileChannel::give(std::string_view bytes) {
  DWORD count = 0;
  if (WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == 0) return false;
  if (count == bytes.size()) return true;
  SetLastError(ERROR_DISK_FULL);
  return false;
}

// What the system refuses is given up: closing does not try it again.
void Win32FileChannel::flush() {
  if (kept_.empty()) return;
  const bool taken = give(kept_);
  kept_.clear();
  if (!taken) throwLastError();
}

// Closes whatever happens. False, with the last error set, where something written has been lost.
bool Win32FileChannel::finish() {
  if (file_ == INVALID_HANDLE_VALUE) return true;
  const bool taken = kept_.empty() || give(kept_);
  const DWORD failure = GetLastError();
  CloseHandle(std::exchange(file_, INVALID_HANDLE_VALUE));
  SetLastError(failure);
  return taken;
}

}  // namespace zub
