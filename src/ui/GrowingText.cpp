#include "ui/GrowingText.h"

#include <utility>

namespace zub {

GrowingText::Change GrowingText::begin(std::string text) {
  shown_ = text.size();
  return {true, std::move(text)};
}

// Half of the room is left free, so that it is not a new beginning that each further line costs.
std::optional<GrowingText::Change> GrowingText::follow(const std::string& text) {
  if (text == followed_) return std::nullopt;
  const bool grown = text.starts_with(followed_);
  std::string added = text.substr(grown ? followed_.size() : 0);
  followed_ = text;
  if (grown && added.size() <= room_ - shown_) {
    shown_ += added.size();
    return Change{false, std::move(added)};
  }
  if (text.size() <= room_) return begin(text);
  const std::size_t line = text.find('\n', text.size() - room_ / 2);
  return begin(std::string(LeftOut) + text.substr(line == std::string::npos ? text.size() : line + 1));
}

}  // namespace zub
