// The content of a file that was written here: what lies beneath, under the pieces that were written over it. Pieces
// of zeros take no memory of their own, so that a shredded file costs none.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "platform/Files.h"

namespace zub {

class PretendContent {
 public:
  PretendContent() = default;
  // Over the file beneath, whose length this is.
  PretendContent(Files& beneath, std::string path, std::int64_t length)
      : beneath_(&beneath), path_(std::move(path)), length_(length), visible_(length) {}

  std::int64_t length() const { return length_; }
  void clear();
  void write(std::int64_t place, std::string_view bytes);
  // The bytes read; 0 at the end.
  std::size_t read(std::int64_t place, std::span<char> buffer) const;

 private:
  struct Piece {
    std::int64_t size = 0;
    std::string bytes;  // empty: zeros
  };
  void cutAt(std::int64_t place);
  void add(std::int64_t place, std::string_view bytes);

  Files* beneath_ = nullptr;
  std::string path_;
  std::int64_t length_ = 0;
  std::int64_t visible_ = 0;              // so much of the file beneath counts
  std::map<std::int64_t, Piece> pieces_;  // by place, none over another
};

class PretendChannel : public FileChannel {
 public:
  explicit PretendChannel(std::shared_ptr<PretendContent> content) : content_(std::move(content)) {}

  std::int64_t length() override { return content_->length(); }
  void seek(std::int64_t offset) override { place_ = offset; }
  std::size_t read(std::span<char> buffer) override;
  void write(std::string_view bytes) override;
  void close() override {}
  void sync() override {}

 private:
  std::shared_ptr<PretendContent> content_;
  std::int64_t place_ = 0;
};

}  // namespace zub
