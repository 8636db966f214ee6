// A PC folder that cannot be used: one of its texts is damaged, or the disk that holds it fails. Told to the
// user as it stands; thrown before anything in the folder is touched, or when it cannot be saved.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace zub {

class PcError : public std::exception {
 public:
  // `line` counts from 1; 0 where no line is to blame.
  PcError(std::string file, int line, std::string reason)
      : file_(std::move(file)), line_(line), reason_(std::move(reason)) {
    text_ = file_ + ": ";
    if (line_ > 0) text_ += "line " + std::to_string(line_) + ": ";
    text_ += reason_;
  }

  // Several failures at once, told in one text.
  explicit PcError(std::string text) : text_(std::move(text)) {}

  const std::string& file() const { return file_; }
  int line() const { return line_; }
  const std::string& reason() const { return reason_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string file_;
  int line_ = 0;
  std::string reason_;
  std::string text_;
};

}  // namespace zub
