#include "platform/win32/RecycleBins.h"

#include "platform/win32/UserSid.h"
#include "platform/win32/Win32Drives.h"

namespace zub {

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
