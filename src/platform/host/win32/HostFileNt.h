// An open plain file of the machine that holds a PC folder.
#pragma once

#include "platform/host/HostDir.h"
#include "platform/host/win32/NtCalls.h"

namespace zub {

class HostFileNt : public HostFile {
 public:
  explicit HostFileNt(NtHandle file) : file_(std::move(file)) {}
  HostError length(std::uint64_t& bytes) override;
  HostError read(std::uint64_t offset, std::span<char> buffer, std::size_t& done) override;
  HostError write(std::uint64_t offset, std::string_view bytes) override;
  HostError sync() override;

 private:
  NtHandle file_;
};

}  // namespace zub
