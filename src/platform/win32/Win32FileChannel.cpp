#include "platform/win32/Win32FileChannel.h"

#include <utility>

#include "platform/win32/FolderLink.h"
#include "platform/win32/Win32Error.h"

namespace zub {
namespace {

constexpr std::size_t KeptAtMost = 65536;

struct ModeRow {
  DWORD access;
  DWORD sharing;
  DWORD disposition;
};

constexpr DWORD Everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

constexpr ModeRow modes[] = {
    {GENERIC_READ | GENERIC_WRITE, 0, OPEN_ALWAYS},  // Binary
    {GENERIC_READ, Everything, OPEN_EXISTING},       // Input
};

}  // namespace

bool isFamily9x() {
  static const bool family9x = (GetVersion() & 0x80000000) != 0;
  return family9x;
}

// The 9x family has no reparse points, and refuses a call that shares the removal.
HANDLE openFile(const char* path, OpenMode mode, bool makes) {
  const bool family9x = isFamily9x();
  const ModeRow& row = modes[static_cast<std::size_t>(mode)];
  const DWORD disposition = makes ? row.disposition : OPEN_EXISTING;
  const DWORD sharing = family9x ? row.sharing & ~static_cast<DWORD>(FILE_SHARE_DELETE) : row.sharing;
  const DWORD flags = FILE_ATTRIBUTE_NORMAL | (family9x ? 0 : FILE_FLAG_OPEN_REPARSE_POINT);
  HANDLE file = CreateFileA(path, row.access, sharing, nullptr, disposition, flags, nullptr);
  if (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_ACCESS_DENIED)
    file = openFolderLink(path, row.access, sharing);
  if (file == INVALID_HANDLE_VALUE) throwLastError();
  return file;
}

std::int64_t lengthOf(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION information;
  if (GetFileInformationByHandle(file, &information) == 0) throwLastError();
  if ((information.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return 0;
  return static_cast<std::int64_t>(information.nFileSizeHigh) << 32 | information.nFileSizeLow;
}

Win32FileChannel::~Win32FileChannel() {
  finish(false);
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
  if (!finish(false)) throwLastError();
}

void Win32FileChannel::closeOnDisk() {
  if (!finish(true)) throwLastError();
}

// Gives bytes to the system. False, with the last error set, where it does not take them all.
bool Win32FileChannel::give(std::string_view bytes) {
  DWORD count = 0;
  if (WriteFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == 0) return false;
  given_ = true;
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
bool Win32FileChannel::finish(bool onDisk) {
  if (file_ == INVALID_HANDLE_VALUE) return true;
  const bool taken = kept_.empty() || give(kept_);
  const bool done = taken && (!onDisk || !given_ || FlushFileBuffers(file_) != 0);
  const DWORD failure = GetLastError();
  CloseHandle(std::exchange(file_, INVALID_HANDLE_VALUE));
  SetLastError(failure);
  return done;
}

}  // namespace zub
