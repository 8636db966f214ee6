#include "platform/host/win32/HostListNt.h"

#include <ntstatus.h>

#include "platform/host/win32/ReparsePoint.h"
#include "platform/host/win32/Utf8.h"

namespace zub {
namespace {

// Room in units of 8 bytes; a record takes at most 72 bytes and its name, of 255 units at most.
constexpr std::size_t OneEntry = 128;
constexpr std::size_t ManyEntries = 8192;

}  // namespace

HostStat hostStat(ULONG attributes, ULONG tag, LARGE_INTEGER size) {
  const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (isLink(attributes, tag)) return {HostKind::Link, folder, false, 0};
  if (folder) return {HostKind::Folder, false, false, 0};
  return {HostKind::File, false, (attributes & FILE_ATTRIBUTE_READONLY) != 0,
          static_cast<std::uint64_t>(size.QuadPart)};
}

bool HostListNt::fill() {
  buffer_.resize(name_.empty() ? ManyEntries : OneEntry);
  UNICODE_STRING only = unicodeText(name_);
  IO_STATUS_BLOCK io;
  const NTSTATUS status =
      nt().queryDirectory(folder_.get(), nullptr, nullptr, nullptr, &io, buffer_.data(),
                          static_cast<ULONG>(buffer_.size() * sizeof(ULONGLONG)),
                          FileFullDirectoryInformation, FALSE, name_.empty() ? nullptr : &only, FALSE);
  if (status < 0 && status != STATUS_NO_MORE_FILES && status != STATUS_NO_SUCH_FILE)
    failure_ = hostError(status);
  if (status < 0 || io.Information == 0) return false;
  record_ = reinterpret_cast<const FILE_FULL_DIR_INFORMATION*>(buffer_.data());
  return true;
}

bool HostListNt::next(HostEntry& entry) {
  while (record_ != nullptr || fill()) {
    const FILE_FULL_DIR_INFORMATION& record = *record_;
    record_ = record.NextEntryOffset == 0
                  ? nullptr
                  : reinterpret_cast<const FILE_FULL_DIR_INFORMATION*>(
                        reinterpret_cast<const char*>(&record) + record.NextEntryOffset);
    const std::wstring_view name(record.FileName, record.FileNameLength / sizeof(wchar_t));
    if (name == L"." || name == L"..") continue;
    setUtf8(entry.name, name);
    entry.stat = hostStat(record.FileAttributes, record.EaSize, record.EndOfFile);
    entry.complete = true;
    return true;
  }
  return false;
}

HostError listShortNames(const NtHandle& folder, std::vector<ShortName>& names) {
  std::vector<ULONGLONG> buffer(ManyEntries);
  for (;;) {
    IO_STATUS_BLOCK io;
    const NTSTATUS status = nt().queryDirectory(folder.get(), nullptr, nullptr, nullptr, &io, buffer.data(),
                                                static_cast<ULONG>(buffer.size() * sizeof(ULONGLONG)),
                                                FileBothDirectoryInformation, FALSE, nullptr, FALSE);
    if (status == STATUS_NO_MORE_FILES || (status >= 0 && io.Information == 0)) return HostError::None;
    if (status < 0) return hostError(status);
    const char* place = reinterpret_cast<const char*>(buffer.data());
    for (ULONG step = 1; step != 0; place += step) {
      const auto& record = *reinterpret_cast<const FILE_BOTH_DIR_INFORMATION*>(place);
      step = record.NextEntryOffset;
      if (record.ShortNameLength == 0) continue;
      ShortName& entry = names.emplace_back();
      setUtf8(entry.name, {record.FileName, record.FileNameLength / sizeof(wchar_t)});
      setUtf8(entry.shortName,
              {record.ShortName, static_cast<std::size_t>(record.ShortNameLength) / sizeof(wchar_t)});
    }
  }
}

}  // namespace zub
