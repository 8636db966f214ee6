#include "platform/host/posix/DiskShortNames.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/msdos_fs.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace zub {
namespace {

// FAT: its listing tells both names of each entry; the long one is empty where there is none.
void fatNames(int folder, std::vector<ShortName>& names) {
  __fat_dirent both[2];
  while (::ioctl(folder, VFAT_IOCTL_READDIR_BOTH, both) > 0 && both[0].d_reclen != 0) {
    if (both[1].d_name[0] != '\0') names.push_back({both[1].d_name, both[0].d_name});
  }
}

// NTFS by its driver in user space: an attribute of each entry.
constexpr const char* NtfsName = "system.ntfs_dos_name";

int ntfsNames(DIR* folder, std::vector<ShortName>& names) {
  const std::string below = "/proc/self/fd/" + std::to_string(::dirfd(folder)) + '/';
  errno = 0;
  while (const dirent* entry = ::readdir(folder)) {
    char text[64];
    const ssize_t size = ::lgetxattr((below + entry->d_name).c_str(), NtfsName, text, sizeof text);
    if (size > 0) names.push_back({entry->d_name, std::string(text, static_cast<std::size_t>(size))});
    if (size < 0 && errno == EOPNOTSUPP) return 0;  // no such disk
    errno = 0;
  }
  return errno == 0 ? 0 : -1;
}

}  // namespace

int diskShortNames(int folder, std::vector<ShortName>& names) {
  const int listed = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (listed < 0) return -1;
  fatNames(listed, names);
  DIR* listing = names.empty() ? ::fdopendir(listed) : nullptr;
  const int result = listing != nullptr ? ntfsNames(listing, names) : names.empty() ? -1 : 0;
  const int failure = errno;
  if (listing != nullptr)
    ::closedir(listing);
  else
    ::close(listed);
  errno = failure;
  return result;
}

}  // namespace zub
