#include "platform/win32/Win32SystemFolders.h"

#include "base/Text.h"
#include "platform/win32/Text.h"

namespace zub {
namespace {

// What a call that fills a buffer tells on this family; empty where it fails, as one does whose room is too small.
template <class Wide, class Ansi>
std::string pathFrom(Wide wideCall, Ansi ansiCall) {
  std::wstring path(MAX_PATH, L'\0');
  if (!isNtFamily()) {
    std::string ansi(MAX_PATH, '\0');
    const DWORD length = ansiCall(ansi.data(), MAX_PATH);
    path = length <= ansi.size() ? wideFromAnsi(ansi.substr(0, length)) : std::wstring();
  } else {
    DWORD length = wideCall(path.data(), MAX_PATH);
    path.resize(length <= path.size() ? length : 0);
  }
  return toldPath(path);
}

std::string programPath() {
  return pathFrom([](wchar_t* path, DWORD room) { return GetModuleFileNameW(nullptr, path, room); },
                  [](char* path, DWORD room) { return GetModuleFileNameA(nullptr, path, room); });
}

}  // namespace

// Where neither variable names a folder the system tells the user's own, Windows' or the current one, which are not for
// anybody's temporary files: then there is none.
std::string Win32SystemFolders::temp(std::uint32_t room) {
  const auto isSet = [](const char* variable) { return GetEnvironmentVariableA(variable, nullptr, 0) > 1; };
  if (!isSet("TMP") && !isSet("TEMP")) return {};
  const std::string path = pathFrom([](wchar_t* buffer, DWORD size) { return GetTempPathW(size, buffer); },
                                    [](char* buffer, DWORD size) { return GetTempPathA(size, buffer); });
  return path.size() < room ? path : std::string();
}

std::string Win32SystemFolders::windows() {
  return pathFrom(GetWindowsDirectoryW, GetWindowsDirectoryA);
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
  return pathFrom([](wchar_t* buffer, DWORD size) { return GetCurrentDirectoryW(size, buffer); },
                  [](char* buffer, DWORD size) { return GetCurrentDirectoryA(size, buffer); });
}

}  // namespace zub
