#include "platform/win32/Win32Drives.h"

#include <utility>

#include "platform/host/win32/WindowsHeader.h"

namespace zub {
namespace {

// The system's own number of a drive's kind.
UINT kindOf(std::string_view drive) {
  if (drive.size() < 2 || drive[1] != ':') return DRIVE_NO_ROOT_DIR;
  const char root[] = {drive[0], ':', '\\', '\0'};
  return GetDriveTypeA(root);
}

}  // namespace

std::vector<std::string> Win32Drives::list() {
  std::vector<std::string> drives;
  const DWORD present = GetLogicalDrives();
  for (int letter = 0; letter < 26; ++letter) {
    if ((present >> letter & 1) != 0) drives.push_back({static_cast<char>('A' + letter), ':'});
  }
  return drives;
}

bool Win32Drives::exists(std::string_view drive) {
  return kindOf(drive) != DRIVE_NO_ROOT_DIR;
}

DriveType Win32Drives::type(std::string_view drive) {
  constexpr std::pair<UINT, DriveType> Types[] = {{DRIVE_REMOVABLE, DriveType::Removable},
                                                  {DRIVE_FIXED, DriveType::Fixed},
                                                  {DRIVE_REMOTE, DriveType::Network},
                                                  {DRIVE_CDROM, DriveType::CdRom},
                                                  {DRIVE_RAMDISK, DriveType::RamDisk}};
  for (const auto& [kind, type] : Types) {
    if (kind == kindOf(drive)) return type;
  }
  return DriveType::Unknown;
}

}  // namespace zub
