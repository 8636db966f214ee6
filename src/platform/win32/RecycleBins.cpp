#include "platform/win32/RecycleBins.h"

#include "platform/host/win32/LoadedCall.h"
#include "platform/win32/Win32Drives.h"

namespace zub {
namespace {

// The user's security identifier as text; empty on the 9x family, which has none.
std::string userSid() {
  constexpr const char* library = "advapi32.dll";
  const auto openToken = loadedCall<BOOL(WINAPI*)(HANDLE, DWORD, PHANDLE)>(library, "OpenProcessToken");
  const auto tokenInformation =
      loadedCall<BOOL(WINAPI*)(HANDLE, TOKEN_INFORMATION_CLASS, LPVOID, DWORD, PDWORD)>(
          library, "GetTokenInformation");
  const auto sidText = loadedCall<BOOL(WINAPI*)(PSID, LPSTR*)>(library, "ConvertSidToStringSidA");
  HANDLE token = nullptr;
  if (openToken == nullptr || tokenInformation == nullptr || sidText == nullptr ||
      openToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0)
    return {};
  alignas(TOKEN_USER) char buffer[256];
  DWORD length = 0;
  std::string result;
  if (tokenInformation(token, TokenUser, buffer, sizeof buffer, &length) != 0) {
    char* text = nullptr;
    if (sidText(reinterpret_cast<TOKEN_USER*>(buffer)->User.Sid, &text) != 0) {
      result = text;
      LocalFree(text);
    }
  }
  CloseHandle(token);
  return result;
}

}  // namespace

std::vector<std::string> recycleBinFolders() {
  const std::string sid = userSid();
  Win32Drives drives;
  std::vector<std::string> folders;
  for (const std::string& drive : drives.list()) {
    if (drives.type(drive) != DriveType::Fixed) continue;
    folders.push_back(drive + "\\Recycled");
    if (sid.empty()) continue;
    folders.push_back(drive + "\\Recycler\\" + sid);
    folders.push_back(drive + "\\$Recycle.Bin\\" + sid);
  }
  return folders;
}

}  // namespace zub
