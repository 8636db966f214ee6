#include "platform/win32/Win32Files.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "platform/win32/FolderLink.h"
#include "platform/win32/Win32Error.h"
#include "platform/win32/Win32FileChannel.h"
#include "platform/win32/Win32FileSearch.h"
#include "platform/win32/Win32Replace.h"

namespace zub {
namespace {

// All that can be wrong with the name of a file is, for a reset, that there is no such file.
constexpr DWORD missing[] = {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                             ERROR_BAD_PATHNAME,   ERROR_BAD_NETPATH,    ERROR_BAD_NET_NAME};

void clearAttributes(const char* path) {
  SetFileAttributesA(path, FILE_ATTRIBUTE_NORMAL);
}

// Removes a file or a reparse point.
bool removeEntry(const char* path) {
  if (DeleteFileA(path) != 0) return true;
  return GetLastError() == ERROR_ACCESS_DENIED && removeFolderLink(path);
}

void deleteTree(const std::string& folder) {
  {
    Win32FileSearch search((folder + "\\*").c_str());
    FoundFile found;
    while (search.next(found)) {
      if (found.name == "." || found.name == "..") continue;
      const std::string path = folder + '\\' + found.name;
      if ((found.attributes & attribute::Directory) != 0) {
        deleteTree(path);
        continue;
      }
      if ((found.attributes & attribute::ReadOnly) != 0) clearAttributes(path.c_str());
      if (!removeEntry(path.c_str())) throwLastError();
    }
  }
  if ((GetFileAttributesA(folder.c_str()) & FILE_ATTRIBUTE_READONLY) != 0) clearAttributes(folder.c_str());
  if (RemoveDirectoryA(folder.c_str()) == 0) throwLastError();
}

}  // namespace

std::unique_ptr<FileSearch> Win32Files::find(std::string_view path) {
  auto search = std::make_unique<Win32FileSearch>(std::string(path).c_str());
  if (!search->any()) return nullptr;
  return search;
}

std::uint32_t Win32Files::attributes(std::string_view path) {
  return seenAttributes(GetFileAttributesA(std::string(path).c_str()));
}

void Win32Files::resetAttributes(std::string_view path) {
  if (SetFileAttributesA(std::string(path).c_str(), FILE_ATTRIBUTE_NORMAL) != 0) return;
  const DWORD failure = GetLastError();
  if (std::ranges::find(missing, failure) != std::end(missing)) throw RuntimeError(ErrorNumber::FileNotFound);
  throw RuntimeError(errorNumberOf(failure));
}

std::unique_ptr<FileChannel> Win32Files::open(std::string_view path, OpenMode mode) {
  return std::make_unique<Win32FileChannel>(openFile(std::string(path).c_str(), mode, true));
}

std::int64_t Win32Files::openedLength(std::string_view path) {
  return Win32FileChannel(openFile(std::string(path).c_str(), OpenMode::Binary, false)).length();
}

void Win32Files::remove(std::string_view path) {
  if (!removeEntry(std::string(path).c_str())) throwLastError();
}

void Win32Files::replace(std::string_view path, std::string_view bytes) {
  replaceFile(std::string(path), bytes);
}

bool Win32Files::fileExists(std::string_view path) {
  return (attributes(path) & attribute::Directory) == 0;  // Invalid has every bit
}

bool Win32Files::folderExists(std::string_view path) {
  const std::uint32_t bits = attributes(path);
  return bits != attribute::Invalid && (bits & attribute::Directory) != 0;
}

void Win32Files::createFolder(std::string_view path) {
  if (CreateDirectoryA(std::string(path).c_str(), nullptr) == 0) throwLastError();
}

// By its full path: "C:" is not the drive, and no way of writing the drive removes what is on it.
void Win32Files::deleteFolder(std::string_view path) {
  if (!folderExists(path)) throw RuntimeError(ErrorNumber::PathNotFound);
  std::array<char, MAX_PATH> full;
  const DWORD length = GetFullPathNameA(std::string(path).c_str(), MAX_PATH, full.data(), nullptr);
  if (length >= full.size()) throw RuntimeError(ErrorNumber::PathNotFound);
  std::string_view folder(full.data(), length);
  folder = folder.substr(0, folder.find_last_not_of('\\') + 1);
  if (folder.empty() || folder.ends_with(':')) throw RuntimeError(ErrorNumber::PathFileAccess);
  deleteTree(std::string(folder));
}

std::string Win32Files::shortPath(std::string_view path) {
  std::array<char, MAX_PATH> result;
  const DWORD length = GetShortPathNameA(std::string(path).c_str(), result.data(), MAX_PATH);
  return length < result.size() ? std::string(result.data(), length) : std::string();
}

}  // namespace zub
