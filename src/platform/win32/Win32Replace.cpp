#include "platform/win32/Win32Replace.h"

#include "base/RuntimeError.h"
#include "platform/win32/Win32Error.h"
#include "platform/win32/Win32FileChannel.h"

namespace zub {
namespace {

// A file that may be there already.
struct Target {
  std::string path;  // with the name that the disk has
  DWORD attributes = INVALID_FILE_ATTRIBUTES;
  bool exists() const { return attributes != INVALID_FILE_ATTRIBUTES; }
};

// The name as the disk has it: `path` may write it in another case or in 8.3, which it would then get.
std::string asOnDisk(const std::string& path) {
  WIN32_FIND_DATAA found;
  const HANDLE search = FindFirstFileA(path.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) throwLastError();
  FindClose(search);
  return path.substr(0, path.find_last_of("\\/:") + 1) + found.cFileName;
}

Target targetOf(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) throwLastError();
    return {path, attributes};
  }
  constexpr DWORD refused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if ((attributes & refused) != 0) throw RuntimeError(ErrorNumber::PathFileAccess);
  Win32FileChannel(openFile(path.c_str(), OpenMode::Binary, false)).close();  // nobody else has it open
  return {asOnDisk(path), attributes};
}

bool isTaken(DWORD failure) {
  return failure == ERROR_FILE_EXISTS || failure == ERROR_ALREADY_EXISTS;
}

// The names beside a file that this process uses one after the other, until one is free.
std::string nameBeside(const std::string& path, unsigned attempt, const char* end) {
  const std::string more = attempt == 0 ? "" : "-" + std::to_string(attempt);
  return path + '.' + std::to_string(GetCurrentProcessId()) + more + end;
}

// A new file beside `path`, whose name `beside` becomes.
HANDLE makeBeside(const std::string& path, std::string& beside) {
  for (unsigned attempt = 0;; ++attempt) {
    beside = nameBeside(path, attempt, ".new");
    const HANDLE file =
        CreateFileA(beside.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) return file;
    if (!isTaken(GetLastError())) throwLastError();
  }
}

// The 9x family moves nothing over an existing file: that one steps aside, and back again where the new one
// does not come.
bool moveOverIn9x(const std::string& beside, const std::string& path) {
  unsigned attempt = 0;
  std::string aside = nameBeside(path, attempt, ".old");
  while (MoveFileA(path.c_str(), aside.c_str()) == 0) {
    if (!isTaken(GetLastError())) return false;
    aside = nameBeside(path, ++attempt, ".old");
  }
  const bool moved = MoveFileA(beside.c_str(), path.c_str()) != 0;
  const DWORD failure = GetLastError();
  if (moved) {
    DeleteFileA(aside.c_str());
  } else {
    MoveFileA(aside.c_str(), path.c_str());
  }
  SetLastError(failure);
  return moved;
}

bool putInPlace(const std::string& beside, const Target& target) {
  if (!target.exists()) return MoveFileA(beside.c_str(), target.path.c_str()) != 0;
  const DWORD kept =
      target.attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE);
  if (kept != 0 && SetFileAttributesA(beside.c_str(), kept) == 0) return false;
  if (isFamily9x()) return moveOverIn9x(beside, target.path);
  return MoveFileExA(beside.c_str(), target.path.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

}  // namespace

void replaceFile(const std::string& path, std::string_view bytes) {
  const Target target = targetOf(path);
  std::string beside;
  const HANDLE file = makeBeside(target.path, beside);
  try {
    Win32FileChannel channel(file);
    channel.write(bytes);
    channel.closeOnDisk();
    if (!putInPlace(beside, target)) throwLastError();
  } catch (const RuntimeError&) {
    DeleteFileA(beside.c_str());
    throw;
  }
}

}  // namespace zub
