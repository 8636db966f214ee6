// The machine that holds a PC folder, where it is a Windows of the NT family.
#include <cstdio>
#include <vector>

#include "platform/host/HostDir.h"
#include "platform/host/win32/HostFileNt.h"
#include "platform/host/win32/HostListNt.h"
#include "platform/host/win32/NtCalls.h"
#include "platform/host/win32/ReparsePoint.h"
#include "platform/host/win32/Utf8.h"

namespace zub {
namespace {

constexpr ACCESS_MASK FolderRights = FILE_LIST_DIRECTORY | FILE_TRAVERSE | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
constexpr ACCESS_MASK RemoveRights = DELETE | FILE_READ_ATTRIBUTES | SYNCHRONIZE;
constexpr ULONG ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr ULONG Itself = FILE_OPEN_REPARSE_POINT;  // not what a reparse point stands for

constexpr std::size_t LongestName = 255;  // in units of UTF-16

struct ModeRow {
  ACCESS_MASK rights;
  ULONG disposition;
};

// By HostOpen. A file to be emptied is looked at before it is.
constexpr ModeRow modes[] = {
    {FILE_GENERIC_READ, FILE_OPEN},
    {FILE_GENERIC_READ | FILE_GENERIC_WRITE, FILE_OPEN},
    {FILE_GENERIC_READ | FILE_GENERIC_WRITE, FILE_OPEN_IF},
    {FILE_GENERIC_READ | FILE_GENERIC_WRITE, FILE_OPEN_IF},
    {FILE_GENERIC_READ | FILE_GENERIC_WRITE, FILE_CREATE},
};

// One part of a path, so that no call can leave its folder; a colon would name a stream of the file, the others
// are wildcards of the calls.
bool isPart(const std::string& name) {
  return !name.empty() && wideFromUtf8(name).size() <= LongestName && name != "." && name != ".." &&
         name.find_first_of(std::string_view("\\/:*?<>\"|\0", 10)) == std::string::npos;
}

NTSTATUS setFacts(const NtHandle& file, void* facts, std::size_t size, int which) {
  IO_STATUS_BLOCK io;
  return nt().setInformation(file.get(), &io, facts, static_cast<ULONG>(size),
                             static_cast<FILE_INFORMATION_CLASS>(which));
}

NTSTATUS getFacts(const NtHandle& file, FILE_NETWORK_OPEN_INFORMATION& facts) {
  IO_STATUS_BLOCK io;
  return nt().queryInformation(file.get(), &io, &facts, sizeof facts, FileNetworkOpenInformation);
}

HostError removeOpened(const NtHandle& file) {
  FILE_DISPOSITION_INFORMATION remove{TRUE};
  return hostError(setFacts(file, &remove, sizeof remove, FileDispositionInformation));
}

struct Opened {
  HostError error = HostError::None;
  HostStat stat;
  ULONG attributes = 0;
  NtHandle handle;
};

class HostDirNt : public HostDir {
 public:
  explicit HostDirNt(NtHandle folder) : folder_(std::move(folder)) {}

  HostError openDir(const std::string& name, std::unique_ptr<HostDir>& child) override;
  HostError list(std::unique_ptr<HostList>& listing) override;
  HostError stat(const std::string& name, HostStat& result) override;
  HostError shortNames(std::vector<ShortName>& names) override;
  HostError openFile(const std::string& name, HostOpen mode, std::unique_ptr<HostFile>& file) override;
  HostError removeFile(const std::string& name) override;
  HostError mayRemove(const std::string& name) override;
  HostError removeDir(const std::string& name) override;
  HostError makeDir(const std::string& name) override;
  HostError setReadOnly(const std::string& name, bool readOnly) override;
  HostError rename(const std::string& from, const std::string& to) override;
  HostError sync() override { return HostError::None; }
  HostError take() override;

 private:
  NTSTATUS open(const std::string& name, ACCESS_MASK rights, ULONG disposition, ULONG options,
                NtHandle& opened);
  bool listedAsLink(const std::string& name);
  Opened openKnown(const std::string& name, ACCESS_MASK rights, ULONG disposition, ULONG options);

  NtHandle folder_;
  NtHandle taken_;
};

// The empty name opens the folder once more.
NTSTATUS HostDirNt::open(const std::string& name, ACCESS_MASK rights, ULONG disposition, ULONG options,
                         NtHandle& opened) {
  std::wstring wide = wideFromUtf8(name);
  UNICODE_STRING text = unicodeText(wide);
  OBJECT_ATTRIBUTES object;
  InitializeObjectAttributes(&object, &text, OBJ_CASE_INSENSITIVE, folder_.get(), nullptr);
  IO_STATUS_BLOCK io;
  return nt().createFile(opened.out(), rights, &object, &io, nullptr, FILE_ATTRIBUTE_NORMAL, ShareAll,
                         disposition, options | FILE_SYNCHRONOUS_IO_NONALERT, nullptr, 0);
}

// Opens what the name stands for, a reparse point as itself, and tells what it is. Wine opens the folder that
// a link of its host leads to; that is not kept open, and is a link all the same.
Opened HostDirNt::openKnown(const std::string& name, ACCESS_MASK rights, ULONG disposition, ULONG options) {
  Opened opened;
  if (!isPart(name)) {
    opened.error = HostError::BadName;
    return opened;
  }
  FILE_NETWORK_OPEN_INFORMATION facts{};
  NTSTATUS status = open(name, rights, disposition, options | Itself, opened.handle);
  if (status >= 0) status = getFacts(opened.handle, facts);
  opened.stat =
      hostStat(facts.FileAttributes, tagOf(opened.handle.get(), facts.FileAttributes), facts.EndOfFile);
  // What a disk keeps in another way (deduplicated, in a cloud) is opened as the file that it is.
  const bool keptElsewhere =
      (facts.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && opened.stat.kind == HostKind::File;
  if (status >= 0 && keptElsewhere) {
    opened.handle = NtHandle();
    status = open(name, rights, disposition, options, opened.handle);
  }
  opened.error = hostError(status);
  opened.attributes = facts.FileAttributes;
  if (opened.stat.kind == HostKind::Folder && listedAsLink(name)) {
    opened.stat.kind = HostKind::Link;
    opened.stat.toFolder = true;
    opened.handle = NtHandle();
  }
  return opened;
}

bool HostDirNt::listedAsLink(const std::string& name) {
  NtHandle folder;
  if (open("", FolderRights, FILE_OPEN, FILE_DIRECTORY_FILE | Itself, folder) < 0) return false;
  HostListNt listing(std::move(folder), wideFromUtf8(name));
  HostEntry entry;
  return listing.next(entry) && entry.stat.kind == HostKind::Link;
}

HostError HostDirNt::openDir(const std::string& name, std::unique_ptr<HostDir>& child) {
  Opened folder = openKnown(name, FolderRights, FILE_OPEN, FILE_DIRECTORY_FILE);
  if (folder.error != HostError::None) return folder.error;
  if (folder.stat.kind != HostKind::Folder) return HostError::NotAFolder;
  child = std::make_unique<HostDirNt>(std::move(folder.handle));
  return HostError::None;
}

HostError HostDirNt::list(std::unique_ptr<HostList>& listing) {
  NtHandle folder;
  const NTSTATUS status = open("", FolderRights, FILE_OPEN, FILE_DIRECTORY_FILE | Itself, folder);
  if (status >= 0) listing = std::make_unique<HostListNt>(std::move(folder));
  return hostError(status);
}

HostError HostDirNt::shortNames(std::vector<ShortName>& names) {
  NtHandle folder;
  const NTSTATUS status = open("", FolderRights, FILE_OPEN, FILE_DIRECTORY_FILE | Itself, folder);
  return status < 0 ? hostError(status) : listShortNames(folder, names);
}

HostError HostDirNt::stat(const std::string& name, HostStat& result) {
  const Opened opened = openKnown(name, FILE_READ_ATTRIBUTES | SYNCHRONIZE, FILE_OPEN, 0);
  if (opened.error == HostError::None) result = opened.stat;
  return opened.error;
}

HostError HostDirNt::openFile(const std::string& name, HostOpen mode, std::unique_ptr<HostFile>& file) {
  const ModeRow& row = modes[static_cast<std::size_t>(mode)];
  Opened opened = openKnown(name, row.rights, row.disposition, FILE_NON_DIRECTORY_FILE);
  if (opened.error != HostError::None) return opened.error;
  if (opened.stat.kind != HostKind::File) return HostError::NotAFile;
  if (mode == HostOpen::Empty) {
    FILE_END_OF_FILE_INFORMATION end{};
    const NTSTATUS status = setFacts(opened.handle, &end, sizeof end, FileEndOfFileInformation);
    if (status < 0) return hostError(status);
  }
  file = std::make_unique<HostFileNt>(std::move(opened.handle));
  return HostError::None;
}

HostError HostDirNt::removeFile(const std::string& name) {
  const Opened file = openKnown(name, RemoveRights, FILE_OPEN, 0);
  if (file.error != HostError::None) return file.error;
  if (file.stat.kind == HostKind::Folder) return HostError::NotAFile;
  if (file.handle.get() == nullptr) return HostError::NoRights;
  const HostError error = removeOpened(file.handle);
  if (error != HostError::NoRights || !file.stat.readOnly) return error;
  return setReadOnly(name, false) == HostError::None ? removeOpened(file.handle) : error;
}

HostError HostDirNt::mayRemove(const std::string& name) {
  const Opened entry = openKnown(name, RemoveRights, FILE_OPEN, 0);
  if (entry.error != HostError::None) return entry.error;
  return entry.handle.get() != nullptr ? HostError::None : HostError::NoRights;
}

HostError HostDirNt::removeDir(const std::string& name) {
  const Opened folder = openKnown(name, RemoveRights, FILE_OPEN, FILE_DIRECTORY_FILE);
  if (folder.error != HostError::None) return folder.error;
  return folder.stat.kind == HostKind::Folder ? removeOpened(folder.handle) : HostError::NotAFolder;
}

HostError HostDirNt::makeDir(const std::string& name) {
  if (!isPart(name)) return HostError::BadName;
  NtHandle made;
  return hostError(open(name, FolderRights, FILE_CREATE, FILE_DIRECTORY_FILE | Itself, made));
}

HostError HostDirNt::setReadOnly(const std::string& name, bool readOnly) {
  const Opened file =
      openKnown(name, FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES | SYNCHRONIZE, FILE_OPEN, 0);
  if (file.error != HostError::None) return file.error;
  if (file.stat.kind == HostKind::Folder) return HostError::None;
  if (file.stat.kind != HostKind::File) return HostError::NotAFile;
  FILE_BASIC_INFORMATION changed{};  // a time of 0 stays as it is, attributes of 0 do too
  changed.FileAttributes = file.attributes & ~ULONG{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_NORMAL};
  if (readOnly) changed.FileAttributes |= FILE_ATTRIBUTE_READONLY;
  if (changed.FileAttributes == 0) changed.FileAttributes = FILE_ATTRIBUTE_NORMAL;
  return hostError(setFacts(file.handle, &changed, sizeof changed, FileBasicInformation));
}

HostError HostDirNt::rename(const std::string& from, const std::string& to) {
  if (!isPart(to)) return HostError::BadName;
  const Opened file = openKnown(from, RemoveRights, FILE_OPEN, 0);
  if (file.error != HostError::None) return file.error;
  const std::wstring name = wideFromUtf8(to);
  const std::size_t size = sizeof(FILE_RENAME_INFORMATION) + name.size() * sizeof(wchar_t);
  std::vector<ULONGLONG> room(size / sizeof(ULONGLONG) + 1);  // aligned as the record wants it
  auto* facts = reinterpret_cast<FILE_RENAME_INFORMATION*>(room.data());
  facts->ReplaceIfExists = TRUE;
  facts->RootDirectory = folder_.get();
  facts->FileNameLength = static_cast<ULONG>(name.size() * sizeof(wchar_t));
  name.copy(facts->FileName, name.size());
  return hostError(setFacts(file.handle, facts, size, FileRenameInformation));
}

// By a named object of the system that goes with its last handle, however the process ends.
HostError HostDirNt::take() {
  if (taken_.get() != nullptr) return HostError::None;
  BY_HANDLE_FILE_INFORMATION facts;
  if (GetFileInformationByHandle(folder_.get(), &facts) == 0) return HostError::DeviceFailure;
  char name[64];
  std::snprintf(name, sizeof name, "Global\\Zubrane folder %lx %lx %lx", facts.dwVolumeSerialNumber,
                facts.nFileIndexHigh, facts.nFileIndexLow);
  NtHandle taken(CreateMutexA(nullptr, FALSE, name));
  if (taken.get() == nullptr || GetLastError() == ERROR_ALREADY_EXISTS) return HostError::InUse;
  taken_ = std::move(taken);
  return HostError::None;
}

}  // namespace

std::unique_ptr<HostDir> openHostDir(const std::string& path) {
  if (!nt().complete()) return nullptr;
  const HANDLE opened = CreateFileW(wideFromUtf8(path).c_str(), FolderRights, ShareAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return nullptr;
  NtHandle folder(opened);
  FILE_NETWORK_OPEN_INFORMATION facts;
  if (getFacts(folder, facts) < 0 || (facts.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return nullptr;
  return std::make_unique<HostDirNt>(std::move(folder));
}

}  // namespace zub
