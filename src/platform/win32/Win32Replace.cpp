#include "platform/win32/Win32Replace.h"

#include "base/RuntimeError.h"
#include "platform/win32/SystemPath.h"
#include "platform/win32/Text.h"
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
  WIN32_FIND_DATAW found;
  const HANDLE search = SystemPath(path).findItself(found);
  if (search == INVALID_HANDLE_VALUE) throwLastError();
  FindClose(search);
  return path.substr(0, path.find_last_of("\\/:") + 1) + toldName(found.cFileName);
}

Target targetOf(const std::string& text) {
  const SystemPath path(text);
  if (path.namesFolder()) throw RuntimeError(ErrorNumber::PathNotFound);
  const DWORD attributes = path.attributes();
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) throwLastError();
    return {text, attributes};
  }
  constexpr DWORD refused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if ((attributes & refused) != 0) throw RuntimeError(ErrorNumber::PathFileAccess);
  Win32FileChannel(openFile(path, FileUse::Write)).close();  // nobody else has it open
  return {asOnDisk(text), attributes};
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
    const HANDLE file = SystemPath(beside).open(GENERIC_WRITE, 0, CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
    if (file != INVALID_HANDLE_VALUE) return file;
    if (!isTaken(GetLastError())) throwLastError();
  }
}

// The 9x family moves nothing over an existing file: that one steps aside, and back again where the new one
// does not come.
bool moveOverIn9x(const SystemPath& beside, const std::string& place) {
  const SystemPath path(place);
  unsigned attempt = 0;
  SystemPath aside(nameBeside(place, attempt, ".old"));
  while (!path.moveTo(aside)) {
    if (!isTaken(GetLastError())) return false;
    aside = SystemPath(nameBeside(place, ++attempt, ".old"));
  }
  const bool moved = beside.moveTo(path);
  const DWORD failure = GetLastError();
  if (moved) {
    aside.removeFile();
  } else {
    aside.moveTo(path);
  }
  SetLastError(failure);
  return moved;
}

bool putInPlace(const SystemPath& beside, const Target& target) {
  if (!target.exists()) return beside.moveTo(SystemPath(target.path));
  const DWORD kept =
      target.attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE);
  if (kept != 0 && !beside.setAttributes(kept)) return false;
  return isNtFamily() ? beside.moveOver(SystemPath(target.path)) : moveOverIn9x(beside, target.path);
}

}  // namespace

void replaceFile(const std::string& path, std::string_view bytes) {
  const Target target = targetOf(path);
  std::string beside;
  const HANDLE file = makeBeside(target.path, beside);
  try {
    Win32FileChannel channel(file);
    channel.write(bytes);
    channel.sync();
    channel.close();
    if (!putInPlace(SystemPath(beside), target)) throwLastError();
  } catch (const RuntimeError&) {
    SystemPath(beside).removeFile();
    throw;
  }
}

}  // namespace zub
