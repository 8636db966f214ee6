#include "ui/controls/Surface.h"

#include <algorithm>
#include <cstddef>

namespace zub::controls {

namespace {

std::uint32_t pixelOf(Color color) {
  return (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}

std::uint32_t mixed(std::uint32_t under, std::uint32_t over) {
  const std::uint32_t opacity = over >> 24U;
  std::uint32_t result = 0;
  for (unsigned shift = 0; shift < 24; shift += 8) {
    const std::uint32_t sum = (over >> shift & 0xFFU) * opacity + (under >> shift & 0xFFU) * (255 - opacity);
    result |= (sum + 127) / 255 << shift;
  }
  return result;
}

// The place in a source of `length` pixels that lies under the middle of pixel `at` of `stretched` ones.
int sourceOf(int at, int length, int stretched) {
  return static_cast<int>((2 * std::int64_t{at} + 1) * length / (2 * std::int64_t{stretched}));
}

}  // namespace

Surface::Surface(std::uint32_t* memory, int width, int height)
    : memory_(memory), stride_(width), size_{width, height}, clip_{0, 0, width, height} {}

Surface Surface::within(const Box& box) const {
  Surface part = *this;
  part.origin_ = {origin_.x + box.left, origin_.y + box.top};
  part.size_ = {std::max(0, box.width), std::max(0, box.height)};
  part.clip_ = common(clip_, {part.origin_.x, part.origin_.y, part.size_.width, part.size_.height});
  return part;
}

std::uint32_t* Surface::row(int y) {
  return memory_ + static_cast<std::ptrdiff_t>(y) * stride_;
}

void Surface::fill(const Box& box, Color color) {
  const Box area = common(clip_, {origin_.x + box.left, origin_.y + box.top, box.width, box.height});
  for (int y = area.top; y < area.bottom(); ++y) std::fill_n(row(y) + area.left, area.width, pixelOf(color));
}

void Surface::copy(const Bitmap& picture, const Box& from, const Box& to) {
  if (to.width <= 0 || to.height <= 0) return;
  const Box whole = {origin_.x + to.left, origin_.y + to.top, to.width, to.height};
  const Box area = common(clip_, whole);
  for (int y = area.top; y < area.bottom(); ++y) {
    const int sourceY = from.top + sourceOf(y - whole.top, from.height, to.height);
    if (sourceY < 0 || sourceY >= picture.height()) continue;
    for (int x = area.left; x < area.right(); ++x) {
      const int sourceX = from.left + sourceOf(x - whole.left, from.width, to.width);
      if (sourceX < 0 || sourceX >= picture.width()) continue;
      std::uint32_t& pixel = row(y)[x];
      pixel = mixed(pixel, picture.pixel(sourceX, sourceY));
    }
  }
}

void Surface::draw(const Bitmap& picture, Point at) {
  const Box whole = {0, 0, picture.width(), picture.height()};
  copy(picture, whole, {at.x, at.y, whole.width, whole.height});
}

}  // namespace zub::controls
