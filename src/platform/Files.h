// Files and folders by their Windows paths: ANSI text, parts joined by backslashes (two in a row count as
// one), found without regard to case, created as written. A path without a drive is on the current drive, one
// without a root is below the current folder. A path with a backslash at its end leads to a folder or nowhere.
//
// Names are told as platform/ToldName.h says, and each told name leads back to exactly its own entry.
//
// A link (a junction too) is a file of length 0; removing it removes the link. Nothing that walks enters one. A
// path may go through a link to a folder where the PC's own system follows it; on a PC in a folder it leads
// nowhere (70). Other reparse points, such as files kept in a cloud, are the files and folders that they look
// like.
//
// What fails throws RuntimeError:
//   52 a name that no file can have          53 no such file          57 device failure          61 disk full
//   67 too many open files                   70 held by another program, or the disk is read-only
//   71 the drive is not ready                76 no such folder or drive on the way
//   75 no rights, a folder where a file is meant, or a read-only file
// and 57 is also what no other number is for.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "base/RuntimeError.h"

namespace zub {

namespace attribute {
inline constexpr std::uint32_t ReadOnly = 1;
inline constexpr std::uint32_t Hidden = 2;
inline constexpr std::uint32_t System = 4;
inline constexpr std::uint32_t Directory = 16;
inline constexpr std::uint32_t Archive = 32;
inline constexpr std::uint32_t Normal = 128;
inline constexpr std::uint32_t Link = 1024;           // with Directory: it leads to a folder
inline constexpr std::uint32_t Invalid = 0xFFFFFFFF;  // there is no such file
}  // namespace attribute

// A folder that may be walked.
constexpr bool isFolder(std::uint32_t attributes) {
  return attributes != attribute::Invalid &&
         (attributes & (attribute::Directory | attribute::Link)) == attribute::Directory;
}
constexpr bool isFolderLink(std::uint32_t attributes) {
  constexpr std::uint32_t both = attribute::Directory | attribute::Link;
  return attributes != attribute::Invalid && (attributes & both) == both;
}

// A failure that says that there is no such file or folder; every other one says that it could not be looked at.
constexpr bool nothingThere(ErrorNumber number) {
  return number == ErrorNumber::BadFileName || number == ErrorNumber::FileNotFound ||
         number == ErrorNumber::DiskNotReady || number == ErrorNumber::PathNotFound;
}

struct FoundFile {
  std::string name;  // without its folder
  std::uint32_t attributes = 0;
  std::uint32_t nFileSizeHigh = 0;
  std::uint32_t nFileSizeLow = 0;
};

// An enumeration of one folder. Files may be removed while it runs; a removed one may still be told.
class FileSearch {
 public:
  virtual ~FileSearch() = default;
  // False at the end; throws where the rest cannot be told. The name keeps its capacity from call to call.
  virtual bool next(FoundFile& found) = 0;
};

// What is opened to be written is refused while any other program has it open. What is only read is refused
// while another program lets nobody read it, and others may go on reading and writing it, and removing
// it but on the 9x family.
enum class OpenMode : std::uint8_t {
  Binary,  // read and write, not truncated, made where it is missing
  Input,   // read an existing file
};

// An open file. Closed by its destructor at the latest, which swallows failures.
class FileChannel {
 public:
  virtual ~FileChannel() = default;
  virtual std::int64_t length() = 0;
  virtual void seek(std::int64_t offset) = 0;            // from the start, 0 is the first byte
  virtual std::size_t read(std::span<char> buffer) = 0;  // bytes read; 0 at the end
  virtual void write(std::string_view bytes) = 0;        // all of them; may be kept back until close
  virtual void close() = 0;                              // writes what was kept back
  virtual void sync() = 0;  // what was written has reached the disk, in its old place
};

// A PC that pretends asks as if a file had lost its read-only bit, which it must not clear.
enum class ReadOnlyBit : std::uint8_t { Counts, Ignored };

enum class Removal : std::uint8_t {
  File,
  EvenReadOnly,  // a file as it goes with its folder
  EmptyFolder,   // what it holds is left aside
};

// A file that was found, to be removed: its steps look for nothing anew, so that all of them are for what was
// found in the folder that was found, whatever lies at its path by then.
class FileGrip {
 public:
  virtual ~FileGrip() = default;
  virtual std::uint32_t attributes() = 0;
  virtual void resetAttributes() = 0;  // clears all of them
  // Fails as opening it to be written does. With the bit ignored, as if the file were not read-only; the system
  // tells no more then than that the bit could be cleared.
  virtual std::int64_t length(ReadOnlyBit bit = ReadOnlyBit::Counts) = 0;
  virtual std::unique_ptr<FileChannel> open() = 0;  // to be written over; never made where it is gone
  // Whether it, or a folder, could be removed now: fails as the removal would, and changes nothing. A file's length.
  virtual std::int64_t removable(Removal how) = 0;
  virtual void remove() = 0;
};

class Files {
 public:
  virtual ~Files() = default;

  // Enumerates the folder of `path` by the pattern behind its last backslash: a wildcard (platform/Wildcard.h),
  // which is compared with the long names only, or a name, which is found as in any path. "." and ".." are not
  // told. With "*" and "*.*" a file may be told without its size and its read-only bit, where these would cost a
  // look at each file. Null where the folder or a match is missing.
  virtual std::unique_ptr<FileSearch> find(std::string_view path) = 0;

  // The attribute bits, or attribute::Invalid. Does not fail.
  virtual std::uint32_t attributes(std::string_view path) = 0;
  // 53 for a missing file also where its folder is missing or the name can name no file.
  virtual std::unique_ptr<FileGrip> grip(std::string_view path) = 0;

  virtual std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) = 0;
  // Writes a file whole, made where it is missing: the bytes are written beside it (under a name of this
  // process, "Cookies.txt.1234.new") and take its place once they have reached the disk. At every moment
  // the file is the old one or the new one; where that fails, the old one. It keeps its name and attributes.
  // Fails as opening for Binary does, and for a link (75). The 9x family cannot do it in one step: there the
  // old file lies beside for a moment ("Cookies.txt.1234.old"), and a kill in that moment leaves both there.
  virtual void replace(std::string_view path, std::string_view bytes) = 0;

  // False only where it is known that there is none; a link to a folder is one.
  virtual bool fileExists(std::string_view path) = 0;
  virtual bool folderExists(std::string_view path) = 0;
  virtual void createFolder(std::string_view path) = 0;  // 75 where it exists, 76 without a parent
  // Removes the folder with all that it holds, read-only entries too. 76 where it is missing or a link. What
  // cannot be removed stays, with the folders that it is in, and nothing else; the first failure is thrown.
  virtual void deleteFolder(std::string_view path) = 0;

  // The 8.3 form of an existing path: what the disk keeps no 8.3 name for stands in it as it is. The empty text
  // for a missing one.
  virtual std::string shortPath(std::string_view path) = 0;
};

}  // namespace zub
