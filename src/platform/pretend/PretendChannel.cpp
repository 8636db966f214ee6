#include "platform/pretend/PretendChannel.h"

#include <algorithm>

namespace zub {

void PretendContent::clear() {
  length_ = visible_ = 0;
  pieces_.clear();
}

// Afterwards no piece lies on both sides of the place.
void PretendContent::cutAt(std::int64_t place) {
  auto piece = pieces_.lower_bound(place);
  if (piece == pieces_.begin()) return;
  --piece;
  auto& [begin, left] = *piece;
  if (begin + left.size <= place) return;
  const std::int64_t size = place - begin;
  Piece right{left.size - size, {}};
  if (!left.bytes.empty()) {
    right.bytes = left.bytes.substr(static_cast<std::size_t>(size));
    left.bytes.resize(static_cast<std::size_t>(size));
  }
  left.size = size;
  pieces_.emplace(place, std::move(right));
}

void PretendContent::write(std::int64_t place, std::string_view bytes) {
  if (bytes.empty()) return;
  if (place > length_) {
    add(length_, std::string(static_cast<std::size_t>(place - length_), '\0'));
  }
  add(place, bytes);
}

void PretendContent::add(std::int64_t place, std::string_view bytes) {
  const auto size = static_cast<std::int64_t>(bytes.size());
  cutAt(place);
  cutAt(place + size);
  pieces_.erase(pieces_.lower_bound(place), pieces_.lower_bound(place + size));
  length_ = std::max(length_, place + size);
  const bool zeros = bytes.find_first_not_of('\0') == std::string_view::npos;
  auto before = pieces_.lower_bound(place);
  if (zeros && before != pieces_.begin()) {
    --before;
    auto& [begin, piece] = *before;
    if (begin + piece.size == place && piece.bytes.empty()) {
      piece.size += size;
      return;
    }
  }
  pieces_.emplace(place, Piece{size, zeros ? std::string{} : std::string(bytes)});
}

std::size_t PretendContent::read(std::int64_t place, std::span<char> buffer) const {
  if (place >= length_) return 0;
  const std::int64_t end = std::min(length_, place + static_cast<std::int64_t>(buffer.size()));
  std::ranges::fill(buffer.first(static_cast<std::size_t>(end - place)), '\0');
  if (beneath_ != nullptr && place < visible_) {
    const auto channel = beneath_->open(path_, OpenMode::Input);
    channel->seek(place);
    const auto wanted = static_cast<std::size_t>(std::min(end, visible_) - place);
    for (std::size_t done = 0; done < wanted;) {
      const std::size_t count = channel->read(buffer.subspan(done, wanted - done));
      if (count == 0) break;
      done += count;
    }
  }
  auto piece = pieces_.upper_bound(place);
  if (piece != pieces_.begin()) --piece;
  for (; piece != pieces_.end() && piece->first < end; ++piece) {
    const auto& [begin, written] = *piece;
    const std::int64_t from = std::max(begin, place);
    const std::int64_t to = std::min(begin + written.size, end);
    for (std::int64_t at = from; at < to; ++at) {
      buffer[static_cast<std::size_t>(at - place)] =
          written.bytes.empty() ? '\0' : written.bytes[static_cast<std::size_t>(at - begin)];
    }
  }
  return static_cast<std::size_t>(end - place);
}

std::size_t PretendChannel::read(std::span<char> buffer) {
  const std::size_t count = content_->read(place_, buffer);
  place_ += static_cast<std::int64_t>(count);
  return count;
}

void PretendChannel::write(std::string_view bytes) {
  content_->write(place_, bytes);
  place_ += static_cast<std::int64_t>(bytes.size());
}

}  // namespace zub
