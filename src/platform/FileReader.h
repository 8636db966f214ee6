// Buffered reading of a file, as bytes or as lines.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "platform/Files.h"

namespace zub {

class FileReader {
 public:
  // Opens for Input, and fails as Files::open does.
  FileReader(Files& files, std::string_view path);

  // The next byte, 0 to 255; -1 at the end.
  int get();
  // Reads `buffer` full, or what is left; the bytes read.
  std::size_t read(std::span<char> buffer);
  // The next line without its CR LF, CR or LF; the last one may lack its terminator. False at the end.
  bool line(std::string& text);
  void seek(std::int64_t offset);

 private:
  bool fill();

  std::unique_ptr<FileChannel> channel_;
  std::array<char, 16384> buffer_;
  std::size_t place_ = 0;
  std::size_t filled_ = 0;
};

}  // namespace zub
