#include "platform/win32/Win32SystemFolders.h"

#include "base/Text.h"
#include "platform/win32/WindowsHeader.h"

namespace zub {
namespace {

std::string programPath() {
  char path[MAX_PATH] = "";
  const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
  return {path, length};
}

// What a call that fills a buffer answered: more than the room is a failure, as 0 is.
std::string filled(const std::string& buffer, DWORD length) {
  return length <= buffer.size() ? buffer.substr(0, length) : std::string();
}

}  // namespace

std::string Win32SystemFolders::temp(std::uint32_t room) {
  std::string path(room, '\0');
  return filled(path, GetTempPathA(room, path.data()));
}

std::string Win32SystemFolders::windows() {
  std::string path(MAX_PATH, '\0');
  return filled(path, GetWindowsDirectoryA(path.data(), MAX_PATH));
}

std::string Win32SystemFolders::programFolder() {
  const std::string path = programPath();
  const std::string folder(withoutLastPathPart(path));
  return folder.ends_with(':') ? withBackslash(folder) : folder;
}

std::string Win32SystemFolders::programFile() {
  return std::string(lastPathPart(programPath()));
}

std::string Win32SystemFolders::current() {
  std::string path(MAX_PATH, '\0');
  return filled(path, GetCurrentDirectoryA(MAX_PATH, path.data()));
}

}  // namespace zub
