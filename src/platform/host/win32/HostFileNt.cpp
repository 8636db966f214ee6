#include "platform/host/win32/HostFileNt.h"

#include <ntstatus.h>

#include <algorithm>

namespace zub {
namespace {

constexpr std::size_t AtOnce = 1 << 24;  // one call takes 32 bits at most

LARGE_INTEGER placeOf(std::uint64_t offset) {
  LARGE_INTEGER place;
  place.QuadPart = static_cast<LONGLONG>(offset);
  return place;
}

}  // namespace

HostError HostFileNt::length(std::uint64_t& bytes) {
  IO_STATUS_BLOCK io;
  FILE_STANDARD_INFORMATION facts;
  const NTSTATUS status =
      nt().queryInformation(file_.get(), &io, &facts, sizeof facts, FileStandardInformation);
  if (status >= 0) bytes = static_cast<std::uint64_t>(facts.EndOfFile.QuadPart);
  return hostError(status);
}

HostError HostFileNt::read(std::uint64_t offset, std::span<char> buffer, std::size_t& done) {
  std::size_t read = 0;
  while (read < buffer.size()) {
    IO_STATUS_BLOCK io;
    LARGE_INTEGER place = placeOf(offset + read);
    const auto part = static_cast<ULONG>(std::min(buffer.size() - read, AtOnce));
    const NTSTATUS status =
        nt().read(file_.get(), nullptr, nullptr, nullptr, &io, buffer.data() + read, part, &place, nullptr);
    if (status == STATUS_END_OF_FILE) break;
    if (status < 0) return hostError(status);
    if (io.Information == 0) break;
    read += io.Information;
  }
  done = read;
  return HostError::None;
}

HostError HostFileNt::write(std::uint64_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    IO_STATUS_BLOCK io;
    LARGE_INTEGER place = placeOf(offset);
    const auto part = static_cast<ULONG>(std::min(bytes.size(), AtOnce));
    const NTSTATUS status =
        nt().write(file_.get(), nullptr, nullptr, nullptr, &io, bytes.data(), part, &place, nullptr);
    if (status < 0) return hostError(status);
    if (io.Information == 0) return HostError::DiskFull;
    bytes.remove_prefix(io.Information);
    offset += io.Information;
  }
  return HostError::None;
}

HostError HostFileNt::sync() {
  IO_STATUS_BLOCK io;
  return hostError(nt().flush(file_.get(), &io));
}

}  // namespace zub
