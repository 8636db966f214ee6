#include "platform/win32/Win32Restart.h"

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

void Win32Restart::deleteAtRestart(std::string_view file) {
  MoveFileExA(std::string(file).c_str(), "", MOVEFILE_DELAY_UNTIL_REBOOT);
}

void Win32Restart::writeProfile(std::string_view section, std::string_view key, std::string_view value,
                                std::string_view file) {
  WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                             std::string(value).c_str(), std::string(file).c_str());
}

// The record has the room of the longer form, so that no size that the system accepts writes beyond it.
std::uint32_t Win32Restart::platformId(std::uint32_t recordSize) {
  OSVERSIONINFOEXA record{};
  record.dwOSVersionInfoSize = recordSize;
  GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&record));
  return record.dwPlatformId;
}

}  // namespace zub
