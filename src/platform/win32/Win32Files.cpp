#include "platform/win32/Win32Files.h"

#include <optional>
#include <utility>

#include "base/Text.h"
#include "platform/win32/FolderLink.h"
#include "platform/win32/SystemPath.h"
#include "platform/win32/Text.h"
#include "platform/win32/Win32Error.h"
#include "platform/win32/Win32FileChannel.h"
#include "platform/win32/Win32FileSearch.h"
#include "platform/win32/Win32Replace.h"

namespace zub {
namespace {

// With the tag of a reparse point; the system tells both together only in a search.
std::uint32_t attributesOf(const SystemPath& path) {
  const DWORD bits = path.attributes();
  if (bits == INVALID_FILE_ATTRIBUTES) return attribute::Invalid;
  if ((bits & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return toldAttributes(bits, false);
  WIN32_FIND_DATAW found{};
  const HANDLE search = path.findItself(found);
  if (search != INVALID_HANDLE_VALUE) FindClose(search);
  return toldAttributes(bits, isLink(bits, found.dwReserved0));
}

bool isFolderOrLink(std::uint32_t attributes) {
  return isFolder(attributes) || isFolderLink(attributes);
}

// Of a file: one with a backslash at its end leads to none.
SystemPath filePath(std::string_view text) {
  SystemPath path(text);
  if (path.namesFolder() && !isFolderOrLink(attributesOf(path)))
    throw RuntimeError(ErrorNumber::PathNotFound);
  return path;
}

// The attributes at a path; nothing where it is known that it leads nowhere, Invalid where it cannot be looked at.
std::optional<std::uint32_t> look(std::string_view text) {
  try {
    const SystemPath path(text);
    const std::uint32_t bits = attributesOf(path);
    if (bits == attribute::Invalid && nothingThere(errorNumberOf(GetLastError()))) return std::nullopt;
    if (bits != attribute::Invalid && path.namesFolder() && !isFolderOrLink(bits)) return std::nullopt;
    return bits;
  } catch (const RuntimeError&) {
    return std::nullopt;  // no path at all
  }
}

// Where the pattern of a search begins. A backslash that is the second byte of a character separates nothing.
std::size_t endOfFolder(std::string_view path) {
  std::size_t end = 0;
  for (std::size_t place = 0; place < path.size(); ++place) {
    if (IsDBCSLeadByte(static_cast<BYTE>(path[place])) != 0)
      ++place;
    else if (path[place] == '\\' || path[place] == '/' || path[place] == ':')
      end = place + 1;
  }
  return end;
}

void removeEntry(const SystemPath& path) {
  if (path.removeFile()) return;
  if (GetLastError() != ERROR_ACCESS_DENIED || !removeFolderLink(path)) throwLastError();
}

// What a step of a removal tells of a file that is missing, its folder with it or by its name.
template <class Step>
auto withMissingFile(Step step) {
  try {
    return step();
  } catch (const RuntimeError& failure) {
    const bool missing = nothingThere(failure.number()) && failure.number() != ErrorNumber::DiskNotReady;
    if (missing) throw RuntimeError(ErrorNumber::FileNotFound);
    throw;
  }
}

// By the path as the system wants it, which is worked out once. It holds no handle: one with the right to remove would
// have to be opened at the first step, and would fail there for what fails at a later one, before the lines that the
// report has in between. The 9x family removes nothing by a handle.
class Win32Grip : public FileGrip {
 public:
  explicit Win32Grip(SystemPath path) : path_(std::move(path)) {}

  std::uint32_t attributes() override { return attributesOf(path_); }
  void resetAttributes() override {
    withMissingFile([&] {
      if (!path_.setAttributes(FILE_ATTRIBUTE_NORMAL)) throwLastError();
    });
  }
  std::int64_t length(ReadOnlyBit bit) override {
    return Win32FileChannel(openFile(path_, bit == ReadOnlyBit::Counts ? FileUse::Write : FileUse::ReadAlone))
        .length();
  }
  std::unique_ptr<FileChannel> open() override {
    return std::make_unique<Win32FileChannel>(openFile(path_, FileUse::Write));
  }
  // The 9x family asks for no right to remove, and opens no folder.
  std::int64_t removable(Removal how) override {
    const bool asFolder = how == Removal::EmptyFolder;
    const std::uint32_t bits = attributesOf(path_);
    if (bits == attribute::Invalid) throwLastError();
    const bool readOnly = (bits & attribute::ReadOnly) != 0 && how == Removal::File;
    if (isFolder(bits) != asFolder || readOnly) throw RuntimeError(ErrorNumber::PathFileAccess);
    const bool nt = isNtFamily();
    if (asFolder && !nt) return 0;
    constexpr DWORD everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const DWORD sharing = nt ? everything : 0;
    const DWORD rights = nt ? DELETE | FILE_READ_ATTRIBUTES : GENERIC_READ;
    const DWORD flags = nt ? FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS : 0;
    const HANDLE opened = isFolderLink(bits) ? openFolderLink(path_, rights, sharing)
                                             : path_.open(rights, sharing, OPEN_EXISTING, flags);
    if (opened == INVALID_HANDLE_VALUE) throwLastError();
    return asFolder ? (CloseHandle(opened), 0) : Win32FileChannel(opened).length();
  }
  void remove() override { removeEntry(path_); }

 private:
  SystemPath path_;
};

// All that can go goes; the first failure is told.
class TreeRemoval {
 public:
  void remove(const std::string& folder) {
    attempt([&] { removeContent(folder); });
    attempt([&] {
      const SystemPath path(folder);
      if ((path.attributes() & FILE_ATTRIBUTE_READONLY) != 0) path.setAttributes(FILE_ATTRIBUTE_NORMAL);
      if (!path.removeFolder()) throwLastError();
    });
  }

  void tell() const {
    if (failure_) throw RuntimeError(*failure_);
  }

 private:
  void removeContent(const std::string& folder) {
    Win32FileSearch search(folder + '\\', "*");
    FoundFile found;
    while (search.next(found)) {
      const std::string entry = folder + '\\' + found.name;
      if (isFolder(found.attributes))
        remove(entry);
      else
        attempt([&] {
          const SystemPath path(entry);
          if ((found.attributes & attribute::ReadOnly) != 0) path.setAttributes(FILE_ATTRIBUTE_NORMAL);
          removeEntry(path);
        });
    }
  }

  template <class Step>
  void attempt(Step step) {
    try {
      step();
    } catch (const RuntimeError& failure) {
      const bool gone = failure.number() == ErrorNumber::FileNotFound;  // meanwhile
      if (!failure_ && !gone) failure_ = failure.number();
    }
  }

  std::optional<ErrorNumber> failure_;
};

}  // namespace

std::unique_ptr<FileSearch> Win32Files::find(std::string_view path) {
  const std::size_t behindFolder = endOfFolder(path);
  try {
    auto search = std::make_unique<Win32FileSearch>(path.substr(0, behindFolder), path.substr(behindFolder));
    if (!search->any()) return nullptr;
    return search;
  } catch (const RuntimeError& failure) {
    if (nothingThere(failure.number())) return nullptr;
    throw;
  }
}

std::uint32_t Win32Files::attributes(std::string_view path) {
  return look(path).value_or(attribute::Invalid);
}

std::unique_ptr<FileGrip> Win32Files::grip(std::string_view path) {
  return withMissingFile([&] {
    SystemPath place = filePath(path);
    if (place.attributes() == INVALID_FILE_ATTRIBUTES) throwLastError();
    return std::make_unique<Win32Grip>(std::move(place));
  });
}

std::unique_ptr<FileChannel> Win32Files::open(std::string_view path, OpenMode mode) {
  return std::make_unique<Win32FileChannel>(
      openFile(filePath(path), mode == OpenMode::Binary ? FileUse::Make : FileUse::Read));
}

void Win32Files::replace(std::string_view path, std::string_view bytes) {
  replaceFile(std::string(path), bytes);
}

bool Win32Files::fileExists(std::string_view path) {
  const auto bits = look(path);
  return bits && (*bits == attribute::Invalid || !isFolderOrLink(*bits));
}

bool Win32Files::folderExists(std::string_view path) {
  const auto bits = look(path);
  return bits && (*bits == attribute::Invalid || isFolderOrLink(*bits));
}

void Win32Files::createFolder(std::string_view path) {
  if (!SystemPath(path).makeFolder()) throwLastError();
}

// No way of writing the drive removes what is on it.
void Win32Files::deleteFolder(std::string_view path) {
  const auto bits = look(path);
  if (!bits || (*bits != attribute::Invalid && !isFolder(*bits)))
    throw RuntimeError(ErrorNumber::PathNotFound);
  if (SystemPath(path).isRoot()) throw RuntimeError(ErrorNumber::PathFileAccess);
  TreeRemoval removal;
  removal.remove(std::string(path.substr(0, path.find_last_not_of("\\/") + 1)));
  removal.tell();
}

std::string Win32Files::shortPath(std::string_view path) {
  try {
    return SystemPath(path).shortPath();
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace zub
