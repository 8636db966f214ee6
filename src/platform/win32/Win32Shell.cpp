#include "platform/win32/Win32Shell.h"

#include "base/RuntimeError.h"
#include "platform/host/win32/LoadedCall.h"
#include "platform/win32/RecycleBins.h"

namespace zub {
namespace {

// With the variables of the environment in place of their names.
std::string expanded(const std::string& text) {
  char room[2048];
  const DWORD length = ExpandEnvironmentStringsA(text.c_str(), room, sizeof room);
  return length > 0 && length <= sizeof room ? room : text;
}

}  // namespace

// The recycle bin's calls came with Internet Explorer 4; where they are missing the program starts all the
// same.
std::int32_t Win32Shell::emptyRecycleBin(std::uint32_t flags) {
  const auto call = loadedCall<HRESULT(WINAPI*)(HWND, LPCSTR, DWORD)>("shell32.dll", "SHEmptyRecycleBinA");
  return call != nullptr ? call(nullptr, "", flags) : E_NOTIMPL;
}

std::vector<std::string> Win32Shell::recycleBins() {
  return recycleBinFolders();
}

void Win32Shell::updateRecycleBinIcon() {
  const auto call = loadedCall<HRESULT(WINAPI*)()>("shell32.dll", "SHUpdateRecycleBinIcon");
  if (call != nullptr) call();
}

void Win32Shell::open(std::string_view document) {
  ShellExecuteA(static_cast<HWND>(owner_()), "open", std::string(document).c_str(), nullptr, nullptr,
                SW_SHOWNORMAL);
}

// The system parts a line into program and arguments itself. Only a path with blanks that stands without quotes
// could be taken for another program with arguments.
void Win32Shell::start(std::string_view program) {
  std::string line = expanded(std::string(program));
  const DWORD attributes = GetFileAttributesA(line.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) line = '"' + line + '"';
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process;
  if (CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == 0)
    throw RuntimeError(ErrorNumber::FileNotFound);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
}

FolderPick Win32Shell::browseForFolder(std::string_view prompt) {
  owner_();  // brings the windows up to their forms: the one that asks is to be disabled by now
  const std::string title(prompt);
  BROWSEINFOA browse{};
  browse.lpszTitle = title.c_str();
  FolderPick pick;
  LPITEMIDLIST item = SHBrowseForFolderA(&browse);
  if (item == nullptr) return pick;
  pick.chosen = true;
  char path[MAX_PATH];
  if (SHGetPathFromIDListA(item, path) != 0) pick.path = path;
  CoTaskMemFree(item);
  return pick;
}

}  // namespace zub
