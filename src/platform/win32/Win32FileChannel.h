// An open file with a write-behind buffer. A link is opened as itself and is empty.
#pragma once

#include "platform/Files.h"
#include "platform/win32/SystemPath.h"

namespace zub {

// What a file is opened for. Who writes, or is alone, is refused while any other program has the file open.
enum class FileUse : std::uint8_t {
  Make,       // to read and write, made where it is missing
  Write,      // to read and write what is there
  Read,       // what is there, beside others
  ReadAlone,  // what is there, with the right to change its attributes
};
// Throws.
HANDLE openFile(const SystemPath& path, FileUse use);
// 0 for a link.
std::int64_t lengthOf(HANDLE file);

class Win32FileChannel : public FileChannel {
 public:
  explicit Win32FileChannel(HANDLE file) : file_(file) {}
  Win32FileChannel(const Win32FileChannel&) = delete;
  Win32FileChannel& operator=(const Win32FileChannel&) = delete;
  ~Win32FileChannel() override;

  std::int64_t length() override;
  void seek(std::int64_t offset) override;
  std::size_t read(std::span<char> buffer) override;
  void write(std::string_view bytes) override;
  void close() override;
  void sync() override;

 private:
  bool give(std::string_view bytes);
  void flush();
  bool finish();

  HANDLE file_;
  std::string kept_;  // written by the program, not yet given to the system
};

}  // namespace zub
