// The file system of the machine that holds a PC folder, reached by open folder handles only: no name here
// has a separator in it, no link is ever followed, so nothing outside the folder that was opened first can be
// touched, whatever others swap in meanwhile. Names are the host's, as UTF-8 bytes (on a POSIX host: whatever
// bytes they are), compared as the host compares them.
//
// A link, on Windows any reparse point, is HostKind::Link: it is never opened and never entered, and removed
// as the link that it is. A device, pipe or socket is HostKind::Other: never opened, removed by its name.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zub {

enum class HostError : std::uint8_t {
  None,
  NotFound,      // no such name, or this folder itself is gone
  NotAFolder,    // a folder was meant and this is something else, a link too
  NotAFile,      // a file was meant and this is a folder, a link or a device
  Exists,        // the name is taken
  NotEmpty,      // the folder still holds something
  NoRights,      // the host's permissions, or the read-only attribute on Windows
  InUse,         // another program holds it
  ReadOnlyDisk,  // the volume cannot be written
  DiskFull,      // or the user's share of it
  TooManyOpen,   // handles of this process or of the machine
  BadName,       // the host cannot have such a name (empty, too long, a separator or NUL in it, "." and "..")
  DeviceFailure,  // everything else
};

enum class HostKind : std::uint8_t { File, Folder, Link, Other };

struct HostStat {
  HostKind kind = HostKind::Other;
  bool toFolder = false;   // of links only: a folder is behind it
  bool readOnly = false;   // of files only: no owner-write permission bit; on Windows the read-only attribute
  std::uint64_t size = 0;  // of files only, in bytes
};

// An entry of a listing. `stat.kind` always counts; size and read-only only where the listing gives them for
// nothing, which `complete` tells.
struct HostEntry {
  std::string name;
  HostStat stat;
  bool complete = false;
};

// A listing in the host's order, without "." and "..". It has a handle of its own, so it outlives the HostDir.
class HostList {
 public:
  virtual ~HostList() = default;
  // False at the end, and where the host fails. The name keeps its capacity from call to call.
  virtual bool next(HostEntry& entry) = 0;
  // Why a listing ended before its end.
  virtual HostError failure() const = 0;
  // Fills size and read-only of an entry that it told; for hosts whose listings lack them.
  virtual void complete(HostEntry&) {}
};

// An entry's 8.3 name.
struct ShortName {
  std::string name;
  std::string shortName;
};

enum class HostOpen : std::uint8_t {
  Read,       // an existing file
  ReadWrite,  // an existing file, not truncated
  Make,       // read and write, not truncated, made where it is missing
  Empty,      // read and write, emptied or made
  New,        // read and write, made; Exists where the name is taken, by a link too
};

// An open plain file; the destructor closes it. Offsets are from the start, in bytes.
class HostFile {
 public:
  virtual ~HostFile() = default;
  virtual HostError length(std::uint64_t& bytes) = 0;
  // `done` is the bytes read, fewer than asked for only at the end of the file.
  virtual HostError read(std::uint64_t offset, std::span<char> buffer, std::size_t& done) = 0;
  // All of them, or an error.
  virtual HostError write(std::uint64_t offset, std::string_view bytes) = 0;
  // What was written has reached the disk.
  virtual HostError sync() = 0;
};

// An open folder; the destructor closes it. The results are set on HostError::None only.
class HostDir {
 public:
  virtual ~HostDir() = default;

  virtual HostError openDir(const std::string& name, std::unique_ptr<HostDir>& child) = 0;
  virtual HostError list(std::unique_ptr<HostList>& listing) = 0;
  virtual HostError stat(const std::string& name, HostStat& result) = 0;  // of the link itself
  // Those that the disk itself keeps for entries of this folder, where the host tells them: NTFS and FAT do.
  virtual HostError shortNames(std::vector<ShortName>& names) = 0;

  // NotAFile for everything but a plain file; never waits. Other programs may read, write and delete the file
  // meanwhile; InUse where they do not allow that.
  virtual HostError openFile(const std::string& name, HostOpen mode, std::unique_ptr<HostFile>& file) = 0;

  // Removes anything but a folder (NotAFile for one), a read-only file too.
  virtual HostError removeFile(const std::string& name) = 0;
  // Whether this user may remove the entry; changes nothing. Rights that change while the folder is open may not count.
  virtual HostError mayRemove(const std::string& name) = 0;
  // Removes an empty folder; NotAFolder for a link.
  virtual HostError removeDir(const std::string& name) = 0;
  virtual HostError makeDir(const std::string& name) = 0;
  // Of a plain file or folder (where it does nothing); NotAFile for a link, whose target keeps its attribute.
  virtual HostError setReadOnly(const std::string& name, bool readOnly) = 0;
  // Within this folder; an existing file of the new name is replaced in one step. On a POSIX host
  // the new one takes over its permissions and, where this user may give it away, its owner.
  virtual HostError rename(const std::string& from, const std::string& to) = 0;
  // The names in this folder have reached the disk. Does nothing where the host needs or knows no such thing.
  virtual HostError sync() = 0;
  // Takes this folder for this process until the HostDir goes. InUse where another HostDir on the same
  // folder, of this or another process, has taken it. A disk that knows no locks lets everybody.
  virtual HostError take() = 0;
};

// The folder at a path of the host, in UTF-8; links on the way are followed, since the user named it. Null
// where there is no such folder or it cannot be opened.
std::unique_ptr<HostDir> openHostDir(const std::string& path);

}  // namespace zub
