#ifdef _WIN32
#include "platform/Win32ContractPc.h"

#include <doctest/doctest.h>
#include <shlwapi.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "platform/WineDeviations.h"
#include "platform/host/win32/LoadedCall.h"
#include "platform/win32/ComPointer.h"
#include "platform/win32/SystemPath.h"
#include "platform/win32/Text.h"

namespace zub {
namespace {

bool underWine() {
  return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

// Where Wine keeps a file.
std::string hostPath(const std::string& path) {
  const auto call = loadedCall<char*(CDECL*)(LPCWSTR)>("kernel32.dll", "wine_get_unix_file_name");
  char* text = call(wideFromAnsi(path).c_str());
  const std::string result = text;
  HeapFree(GetProcessHeap(), 0, text);
  return result;
}

std::wstring widePath(const std::string& folder, std::u16string_view name) {
  return L"\\\\?\\" + wideFromAnsi(folder) + L'\\' + std::wstring(name.begin(), name.end());
}

bool isLinkAt(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// Wine starts a program of the host but cannot wait for its end: waits for what it does instead.
void onHost(const std::string& command, const std::string& path, bool linkAfterwards) {
  std::system(("start /unix " + command).c_str());
  const DWORD begin = GetTickCount();
  while (isLinkAt(path) != linkAfterwards && GetTickCount() - begin < 10000) SwitchToThread();
}

}  // namespace

Win32ContractPc::Win32ContractPc() {
  char text[MAX_PATH];
  GetTempPathA(MAX_PATH, text);
  folder_ = text + ("zubtest" + std::to_string(GetCurrentProcessId()));
  GetCurrentDirectoryA(MAX_PATH, text);
  before_ = text;
  clean();  // what a run that was killed has left
  CreateDirectoryA(folder_.c_str(), nullptr);
  SetCurrentDirectoryA(folder_.c_str());
}

Win32ContractPc::~Win32ContractPc() {
  for (const auto& [path, handle] : locks_) CloseHandle(handle);
  for (const std::string& link : hostLinks_) onHost("/bin/rm -f " + hostPath(link), link, false);
  SetCurrentDirectoryA(before_.c_str());
  clean();
}

void Win32ContractPc::clean() {
  Files& files = *platform().files;
  try {
    if (files.folderExists(folder_)) files.deleteFolder(folder_);
  } catch (const RuntimeError& error) {
    MESSAGE("the scratch folder stays: " << error.description());
  }
  SHDeleteKeyW(HKEY_CURRENT_USER, wideFromAnsi(key()).c_str());
  ComPointer<ITaskScheduler> service;
  if (SUCCEEDED(CoCreateInstance(CLSID_CTaskScheduler, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskScheduler,
                                 service.outVoid())))
    service->Delete(wideFromAnsi(task()).c_str());
}

void Win32ContractPc::file(const std::string& path, std::string_view bytes) {
  std::ofstream stream(path, std::ios::binary);
  stream << bytes;
  REQUIRE(stream.good());
}

std::string Win32ContractPc::bytes(const std::string& path) const {
  std::ifstream stream(path, std::ios::binary);
  REQUIRE(stream.good());
  return {std::istreambuf_iterator<char>(stream), {}};
}

void Win32ContractPc::readOnly(const std::string& path) {
  REQUIRE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY) != 0);
}

void Win32ContractPc::hide(const std::string& path) {
  REQUIRE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN) != 0);
}

void Win32ContractPc::openAs(const std::string& path, unsigned long access, unsigned long sharing) {
  const HANDLE handle =
      CreateFileA(path.c_str(), access, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  REQUIRE(handle != INVALID_HANDLE_VALUE);
  locks_[path] = handle;
}

void Win32ContractPc::lock(const std::string& path) {
  openAs(path, GENERIC_READ, 0);
}

bool Win32ContractPc::hold(const std::string& path, Sharing sharing) {
  const DWORD others =
      sharing == Sharing::Reading ? FILE_SHARE_READ : FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  openAs(path, GENERIC_READ | GENERIC_WRITE, others);
  return true;
}

void Win32ContractPc::unlock(const std::string& path) {
  CloseHandle(locks_.at(path));
  locks_.erase(path);
}

// A junction, which needs no rights; under Wine, which makes none, a link of the host.
bool Win32ContractPc::link(const std::string& path, const std::string& target) {
  if (underWine()) {
    onHost("/bin/ln -s " + hostPath(target) + ' ' + hostPath(path), path, true);
    hostLinks_.push_back(path);
  } else {
    std::system(("mklink /J " + path + ' ' + target + " >nul").c_str());
  }
  return isLinkAt(path);
}

void Win32ContractPc::wide(std::u16string_view name, bool folder) {
  const std::wstring path = widePath(folder_, name);
  if (folder) {
    REQUIRE(CreateDirectoryW(path.c_str(), nullptr) != 0);
    return;
  }
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  REQUIRE(file != INVALID_HANDLE_VALUE);
  CloseHandle(file);
}

bool Win32ContractPc::hasWide(std::u16string_view name) const {
  return GetFileAttributesW(widePath(folder_, name).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void Win32ContractPc::wideKey(std::u16string_view name) {
  HKEY opened = nullptr;
  const std::wstring path = wideFromAnsi(key()) + L'\\' + std::wstring(name.begin(), name.end());
  REQUIRE(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &opened,
                          nullptr) == ERROR_SUCCESS);
  RegCloseKey(opened);
}

std::string Win32ContractPc::times(const std::string& path) const {
  WIN32_FIND_DATAW found;
  const HANDLE search = SystemPath(path).findItself(found);
  if (search == INVALID_HANDLE_VALUE) return {};
  FindClose(search);
  std::string text;
  for (const FILETIME& time : {found.ftCreationTime, found.ftLastWriteTime})
    text += std::to_string(time.dwHighDateTime) + ':' + std::to_string(time.dwLowDateTime) + ' ';
  return text;
}

bool Win32ContractPc::deviates(std::string_view name) const {
  for (const WineDeviation& row : wineDeviations) {
    if (row.name == name) return underWine();
  }
  FAIL("no such deviation");
  return false;
}

}  // namespace zub
#endif
