#include "platform/win32/UserSid.h"

#include "platform/host/win32/LoadedCall.h"
#include "platform/win32/Text.h"

namespace zub {

std::string userSid() {
  if (!isNtFamily()) return {};
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

}  // namespace zub
