// The host's file system on POSIX.
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <utility>

#include "platform/host/HostDir.h"
#include "platform/host/posix/DiskShortNames.h"

namespace zub {
namespace {

HostError errorOf(int number) {
  struct Row {
    int number;
    HostError error;
  };
  static constexpr Row Rows[] = {
      {ENOENT, HostError::NotFound},    {ENOTDIR, HostError::NotAFolder},   {ELOOP, HostError::NotAFile},
      {EISDIR, HostError::NotAFile},    {ENXIO, HostError::NotAFile},       {EOPNOTSUPP, HostError::NotAFile},
      {EEXIST, HostError::Exists},      {ENOTEMPTY, HostError::NotEmpty},   {EACCES, HostError::NoRights},
      {EPERM, HostError::NoRights},     {EBUSY, HostError::InUse},          {ETXTBSY, HostError::InUse},
      {EWOULDBLOCK, HostError::InUse},  {EROFS, HostError::ReadOnlyDisk},   {ENOSPC, HostError::DiskFull},
      {EDQUOT, HostError::DiskFull},    {EFBIG, HostError::DiskFull},       {EMFILE, HostError::TooManyOpen},
      {ENFILE, HostError::TooManyOpen}, {ENAMETOOLONG, HostError::BadName}, {EINVAL, HostError::BadName},
      {EILSEQ, HostError::BadName},
  };
  for (const Row& row : Rows) {
    if (row.number == number) return row.error;
  }
  return HostError::DeviceFailure;
}

HostError result(int returned) {
  return returned < 0 ? errorOf(errno) : HostError::None;
}

// One part of a path, so that no call can leave its folder.
bool isPart(const std::string& name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
         name.find('\0') == std::string::npos;
}

HostKind kindOf(mode_t mode) {
  if (S_ISREG(mode)) return HostKind::File;
  if (S_ISDIR(mode)) return HostKind::Folder;
  return S_ISLNK(mode) ? HostKind::Link : HostKind::Other;
}

HostStat statOf(const struct stat& host) {
  HostStat stat;
  stat.kind = kindOf(host.st_mode);
  if (stat.kind == HostKind::File) {
    stat.readOnly = (host.st_mode & S_IWUSR) == 0;
    stat.size = static_cast<std::uint64_t>(host.st_size);
  }
  return stat;
}

// The kind of what is behind a link is all that is ever asked of it.
bool leadsToFolder(int folder, const char* name) {
  struct stat behind {};
  return ::fstatat(folder, name, &behind, 0) == 0 && S_ISDIR(behind.st_mode);
}

class Handle {
 public:
  explicit Handle(int number) : number_(number) {}
  Handle(Handle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Handle& operator=(Handle&&) = delete;
  ~Handle() {
    if (number_ >= 0) ::close(number_);
  }
  int get() const { return number_; }
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

class PosixFile : public HostFile {
 public:
  explicit PosixFile(Handle handle) : handle_(std::move(handle)) {}

  HostError length(std::uint64_t& bytes) override {
    struct stat host {};
    if (::fstat(handle_.get(), &host) < 0) return errorOf(errno);
    bytes = static_cast<std::uint64_t>(host.st_size);
    return HostError::None;
  }

  HostError read(std::uint64_t offset, std::span<char> buffer, std::size_t& done) override {
    std::size_t read = 0;
    while (read < buffer.size()) {
      const ssize_t part = ::pread(handle_.get(), buffer.data() + read, buffer.size() - read,
                                   static_cast<off_t>(offset + read));
      if (part < 0 && errno == EINTR) continue;
      if (part < 0) return errorOf(errno);
      if (part == 0) {
        // Some disks that fail tell nothing but an end.
        std::uint64_t bytes = 0;
        const HostError error = length(bytes);
        if (error == HostError::None && bytes > offset + read) return HostError::DeviceFailure;
        break;
      }
      read += static_cast<std::size_t>(part);
    }
    done = read;
    return HostError::None;
  }

  HostError write(std::uint64_t offset, std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t part = ::pwrite(handle_.get(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
      if (part < 0 && errno == EINTR) continue;
      if (part < 0) return errorOf(errno);
      if (part == 0) return HostError::DeviceFailure;
      bytes.remove_prefix(static_cast<std::size_t>(part));
      offset += static_cast<std::uint64_t>(part);
    }
    return HostError::None;
  }

  HostError sync() override { return result(::fdatasync(handle_.get())); }

 private:
  Handle handle_;
};

class PosixList : public HostList {
 public:
  explicit PosixList(DIR* folder) : folder_(folder) {}
  PosixList(const PosixList&) = delete;
  PosixList& operator=(const PosixList&) = delete;
  ~PosixList() override { ::closedir(folder_); }

  bool next(HostEntry& entry) override {
    while (const dirent* found = nextOfHost()) {
      entry.name = found->d_name;
      if (!isPart(entry.name)) continue;
      entry.stat = {};
      entry.complete = false;
      if (kindByType(found->d_type, entry.stat.kind)) {
        if (entry.stat.kind == HostKind::Link)
          entry.stat.toFolder = leadsToFolder(::dirfd(folder_), entry.name.c_str());
        return true;
      }
      complete(entry);
      if (entry.complete) return true;
    }
    return false;
  }

  HostError failure() const override { return failure_; }

  // An entry that is gone meanwhile is none.
  void complete(HostEntry& entry) override {
    struct stat host {};
    if (::fstatat(::dirfd(folder_), entry.name.c_str(), &host, AT_SYMLINK_NOFOLLOW) < 0) {
      if (errno != ENOENT) failure_ = errorOf(errno);
      return;
    }
    entry.stat = statOf(host);
    if (entry.stat.kind == HostKind::Link)
      entry.stat.toFolder = leadsToFolder(::dirfd(folder_), entry.name.c_str());
    entry.complete = true;
  }

 private:
  const dirent* nextOfHost() {
    errno = 0;
    const dirent* found = ::readdir(folder_);
    if (found == nullptr && errno != 0) failure_ = errorOf(errno);
    return found;
  }

  static bool kindByType(unsigned char type, HostKind& kind) {
    if (type == DT_UNKNOWN) return false;
    kind = type == DT_REG   ? HostKind::File
           : type == DT_DIR ? HostKind::Folder
           : type == DT_LNK ? HostKind::Link
                            : HostKind::Other;
    return true;
  }

  DIR* folder_;
  HostError failure_ = HostError::None;
};

constexpr int FolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

class PosixDir : public HostDir {
 public:
  explicit PosixDir(Handle handle) : handle_(std::move(handle)) {}

  HostError openDir(const std::string& name, std::unique_ptr<HostDir>& child) override {
    if (!isPart(name)) return HostError::BadName;
    Handle handle(::openat(handle_.get(), name.c_str(), FolderFlags | O_NOFOLLOW));
    if (handle.get() < 0) return errno == ELOOP ? HostError::NotAFolder : errorOf(errno);
    child = std::make_unique<PosixDir>(std::move(handle));
    return HostError::None;
  }

  HostError list(std::unique_ptr<HostList>& listing) override {
    Handle handle(::openat(handle_.get(), ".", FolderFlags));
    if (handle.get() < 0) return errorOf(errno);
    DIR* folder = ::fdopendir(handle.get());
    if (folder == nullptr) return errorOf(errno);
    handle.release();
    listing = std::make_unique<PosixList>(folder);
    return HostError::None;
  }

  HostError stat(const std::string& name, HostStat& found) override {
    if (!isPart(name)) return HostError::BadName;
    struct stat host {};
    if (::fstatat(handle_.get(), name.c_str(), &host, AT_SYMLINK_NOFOLLOW) < 0) return errorOf(errno);
    found = statOf(host);
    if (found.kind == HostKind::Link) found.toFolder = leadsToFolder(handle_.get(), name.c_str());
    return HostError::None;
  }

  HostError shortNames(std::vector<ShortName>& names) override {
    return result(diskShortNames(handle_.get(), names));
  }

  HostError openFile(const std::string& name, HostOpen mode, std::unique_ptr<HostFile>& file) override {
    if (!isPart(name)) return HostError::BadName;
    // A pipe or device would wait for its other end: it is opened without waiting and then refused.
    constexpr int always = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    Handle handle(::openat(handle_.get(), name.c_str(), always | flagsOf(mode), 0644));
    if (handle.get() < 0) return errorOf(errno);
    struct stat host {};
    if (::fstat(handle.get(), &host) < 0) return errorOf(errno);
    if (!S_ISREG(host.st_mode)) return HostError::NotAFile;
    if (mode == HostOpen::Empty && ::ftruncate(handle.get(), 0) < 0) return errorOf(errno);
    file = std::make_unique<PosixFile>(std::move(handle));
    return HostError::None;
  }

  HostError removeFile(const std::string& name) override {
    if (!isPart(name)) return HostError::BadName;
    if (::unlinkat(handle_.get(), name.c_str(), 0) == 0) return HostError::None;
    // Some systems answer EPERM for a folder.
    const int failure = errno;
    HostStat found;
    if (failure == EPERM && stat(name, found) == HostError::None && found.kind == HostKind::Folder) {
      return HostError::NotAFile;
    }
    return errorOf(failure);
  }

  HostError mayRemove(const std::string& name) override {
    if (!isPart(name)) return HostError::BadName;
    if (!removal_) removal_ = rightsHere();
    if (!removal_->onlyOwn) return removal_->error;
    struct stat entry {};
    if (::fstatat(handle_.get(), name.c_str(), &entry, AT_SYMLINK_NOFOLLOW) < 0) return errorOf(errno);
    return entry.st_uid == ::geteuid() ? HostError::None : HostError::NoRights;
  }

  HostError removeDir(const std::string& name) override {
    if (!isPart(name)) return HostError::BadName;
    if (::unlinkat(handle_.get(), name.c_str(), AT_REMOVEDIR) == 0) return HostError::None;
    return errno == EEXIST ? HostError::NotEmpty : errorOf(errno);
  }

  HostError makeDir(const std::string& name) override {
    if (!isPart(name)) return HostError::BadName;
    return result(::mkdirat(handle_.get(), name.c_str(), 0755));
  }

  HostError setReadOnly(const std::string& name, bool readOnly) override {
    if (!isPart(name)) return HostError::BadName;
    struct stat host {};
    if (::fstatat(handle_.get(), name.c_str(), &host, AT_SYMLINK_NOFOLLOW) < 0) return errorOf(errno);
    if (S_ISDIR(host.st_mode)) return HostError::None;
    if (!S_ISREG(host.st_mode)) return HostError::NotAFile;
    const mode_t writing = S_IWUSR | S_IWGRP | S_IWOTH;
    const mode_t mode = readOnly ? host.st_mode & ~writing : host.st_mode | S_IWUSR;
    return result(::fchmodat(handle_.get(), name.c_str(), mode & 07777, AT_SYMLINK_NOFOLLOW));
  }

  HostError rename(const std::string& from, const std::string& to) override {
    if (!isPart(from) || !isPart(to)) return HostError::BadName;
    struct stat old {};
    if (::fstatat(handle_.get(), to.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(old.st_mode))
      handOn(from, old);
    return result(::renameat(handle_.get(), from.c_str(), handle_.get(), to.c_str()));
  }

  HostError sync() override {
    const bool done = ::fsync(handle_.get()) == 0 || errno == EINVAL || errno == EOPNOTSUPP;
    return done ? HostError::None : errorOf(errno);
  }

  HostError take() override {
    if (::flock(handle_.get(), LOCK_EX | LOCK_NB) == 0) return HostError::None;
    const bool unknown = errno == EBADF || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return unknown ? HostError::None : errorOf(errno);
  }

 private:
  // What this user may remove in the folder, asked once while it is open.
  struct RemovalRights {
    HostError error = HostError::None;
    bool onlyOwn = false;  // everybody only what is his
  };
  RemovalRights rightsHere() const {
    struct stat folder {};
    if (::faccessat(handle_.get(), ".", W_OK | X_OK, AT_EACCESS) < 0 || ::fstat(handle_.get(), &folder) < 0)
      return {errorOf(errno)};
    const bool mayAll = ::geteuid() == 0 || ::geteuid() == folder.st_uid;
    return {HostError::None, (folder.st_mode & S_ISVTX) != 0 && !mayAll};
  }

  // The permissions of a file that is replaced, and its owner. Not all disks and users can.
  void handOn(const std::string& name, const struct stat& old) {
    const mode_t mode = old.st_mode & 0777;
    [[maybe_unused]] int done = ::fchmodat(handle_.get(), name.c_str(), mode, AT_SYMLINK_NOFOLLOW);
    done = ::fchownat(handle_.get(), name.c_str(), old.st_uid, old.st_gid, AT_SYMLINK_NOFOLLOW);
  }

  static int flagsOf(HostOpen mode) {
    constexpr int make = O_RDWR | O_CREAT;
    constexpr int Flags[] = {O_RDONLY, O_RDWR, make, make, make | O_EXCL};  // by HostOpen
    return Flags[static_cast<std::size_t>(mode)];
  }

  Handle handle_;
  std::optional<RemovalRights> removal_;
};

}  // namespace

std::unique_ptr<HostDir> openHostDir(const std::string& path) {
  if (path.empty()) return nullptr;
  Handle handle(::open(path.c_str(), FolderFlags));
  return handle.get() < 0 ? nullptr : std::make_unique<PosixDir>(std::move(handle));
}

}  // namespace zub
