#include "platform/FileReader.h"

#include <algorithm>

namespace zub {

FileReader::FileReader(Files& files, std::string_view path) : channel_(files.open(path, OpenMode::Input)) {}

bool FileReader::fill() {
  place_ = 0;
  filled_ = channel_->read(buffer_);
  return filled_ > 0;
}

int FileReader::get() {
  if (place_ == filled_ && !fill()) return -1;
  return static_cast<unsigned char>(buffer_[place_++]);
}

std::size_t FileReader::read(std::span<char> buffer) {
  std::size_t done = 0;
  while (done < buffer.size() && (place_ < filled_ || fill())) {
    const std::size_t part = std::min(buffer.size() - done, filled_ - place_);
    std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(place_), part,
                buffer.begin() + static_cast<std::ptrdiff_t>(done));
    place_ += part;
    done += part;
  }
  return done;
}

bool FileReader::line(std::string& text) {
  text.clear();
  int c = get();
  if (c == -1) return false;
  for (; c != -1 && c != '\n' && c != '\r'; c = get()) text += static_cast<char>(c);
  if (c == '\r') {
    if (place_ == filled_) fill();
    if (place_ < filled_ && buffer_[place_] == '\n') ++place_;
  }
  return true;
}

void FileReader::seek(std::int64_t offset) {
  channel_->seek(offset);
  place_ = filled_ = 0;
}

}  // namespace zub
