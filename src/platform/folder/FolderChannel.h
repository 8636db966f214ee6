// An open file of a PC in a folder. Writes are kept back in one window of the file, so that small blocks,
// also those written again over the last ones, cost few calls on the host.
#pragma once

#include "platform/Files.h"
#include "platform/host/HostDir.h"

namespace zub {

class FolderChannel : public FileChannel {
 public:
  FolderChannel(std::unique_ptr<HostFile> file, bool writable);
  FolderChannel(const FolderChannel&) = delete;
  FolderChannel& operator=(const FolderChannel&) = delete;
  ~FolderChannel() override;

  std::int64_t length() override;
  void seek(std::int64_t offset) override;
  std::size_t read(std::span<char> buffer) override;
  void write(std::string_view bytes) override;
  void close() override;
  void sync() override;

 private:
  HostError give();
  void flush();
  HostFile& file() const;

  std::unique_ptr<HostFile> file_;  // null when closed
  bool writable_;
  std::uint64_t offset_ = 0;
  std::uint64_t windowStart_ = 0;
  std::string window_;  // bytes kept back
};

}  // namespace zub
