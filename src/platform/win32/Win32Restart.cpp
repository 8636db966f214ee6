#include "platform/win32/Win32Restart.h"

#include "platform/win32/Text.h"

namespace zub {

// The 9x family has no such call at all.
void Win32Restart::deleteAtRestart(std::string_view file) {
  MoveFileExW(untoldWide(file).c_str(), L"", MOVEFILE_DELAY_UNTIL_REBOOT);
}

// The 9x family keeps what was written to itself until it is asked to let it go.
void Win32Restart::writeProfile(std::string_view section, std::string_view key, std::string_view value,
                                std::string_view file) {
  const std::string name(file);
  WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                             std::string(value).c_str(), name.c_str());
  WritePrivateProfileStringA(nullptr, nullptr, nullptr, name.c_str());
}

// The record has the room of the longer form, so that no size that the system accepts writes beyond it.
std::uint32_t Win32Restart::platformId(std::uint32_t recordSize) {
  OSVERSIONINFOEXA record{};
  record.dwOSVersionInfoSize = recordSize;
  GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&record));
  return record.dwPlatformId;
}

}  // namespace zub
