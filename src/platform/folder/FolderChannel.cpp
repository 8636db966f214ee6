#include "platform/folder/FolderChannel.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::size_t WindowSize = 65536;

}  // namespace

FolderChannel::FolderChannel(std::unique_ptr<HostFile> file, bool writable)
    : file_(std::move(file)), writable_(writable) {}

FolderChannel::~FolderChannel() {
  if (file_) give();
}

HostFile& FolderChannel::file() const {
  if (!file_) throw RuntimeError(ErrorNumber::BadFileName);
  return *file_;
}

// Writes what was kept back; what the host refuses is given up.
HostError FolderChannel::give() {
  const HostError error = window_.empty() ? HostError::None : file_->write(windowStart_, window_);
  window_.clear();
  return error;
}

void FolderChannel::flush() {
  file();
  check(give());
}

std::int64_t FolderChannel::length() {
  std::uint64_t bytes = 0;
  check(file().length(bytes));
  if (!window_.empty()) bytes = std::max(bytes, windowStart_ + window_.size());
  return static_cast<std::int64_t>(bytes);
}

void FolderChannel::seek(std::int64_t offset) {
  if (offset < 0) throw RuntimeError(ErrorNumber::InvalidCall);
  offset_ = static_cast<std::uint64_t>(offset);
}

std::size_t FolderChannel::read(std::span<char> buffer) {
  flush();
  std::size_t done = 0;
  check(file().read(offset_, buffer, done));
  offset_ += done;
  return done;
}

void FolderChannel::write(std::string_view bytes) {
  if (!writable_) throw RuntimeError(ErrorNumber::PathFileAccess);
  const bool inWindow = !window_.empty() && offset_ >= windowStart_ &&
                        offset_ <= windowStart_ + window_.size() &&
                        offset_ - windowStart_ + bytes.size() <= WindowSize;
  if (!inWindow) {
    flush();
    windowStart_ = offset_;
    window_.reserve(WindowSize);
  }
  const auto place = static_cast<std::size_t>(offset_ - windowStart_);
  window_.replace(place, std::min(bytes.size(), window_.size() - place), bytes);
  offset_ += bytes.size();
}

void FolderChannel::sync() {
  flush();
  check(file_->sync());
}

// Closes whatever happens.
void FolderChannel::close() {
  if (!file_) return;
  const HostError error = give();
  file_.reset();
  check(error);
}

}  // namespace zub
