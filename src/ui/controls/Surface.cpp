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

// The pixels of a source that lie under one pixel of it stretched: the first, one past the last, and how much of
// each, counted so that the whole is `length`.
struct Span {
  Span(int at, int length, int stretched)
      : length_(length),
        stretched_(stretched),
        begins_(std::int64_t{at} * length),
        first(static_cast<int>(begins_ / stretched)),
        end(static_cast<int>((begins_ + length - 1) / stretched) + 1) {}

  std::uint64_t share(int pixel) const {
    const std::int64_t from = std::max(begins_, std::int64_t{pixel} * stretched_);
    const std::int64_t to = std::min(begins_ + length_, (std::int64_t{pixel} + 1) * stretched_);
    return static_cast<std::uint64_t>(to - from);
  }

 private:
  int length_, stretched_;
  std::int64_t begins_;

 public:
  int first, end;
};

// A mean of pixels, each with its share, by their opacities.
class Mean {
 public:
  void add(std::uint32_t pixel, std::uint64_t share) {
    const std::uint64_t weight = share * (pixel >> 24U);
    opacity_ += weight;
    for (unsigned color = 0; color < 3; ++color) colors_[color] += weight * (pixel >> 8U * color & 0xFFU);
  }
  // Of shares that make up `whole`.
  std::uint32_t pixel(std::uint64_t whole) const {
    if (opacity_ == 0) return 0;
    auto result = static_cast<std::uint32_t>((opacity_ + whole / 2) / whole) << 24U;
    for (unsigned color = 0; color < 3; ++color)
      result |= static_cast<std::uint32_t>((colors_[color] + opacity_ / 2) / opacity_) << 8U * color;
    return result;
  }

 private:
  std::uint64_t opacity_ = 0;
  std::uint64_t colors_[3] = {};
};

// What lies outside the picture counts as transparent.
std::uint32_t mean(const Bitmap& picture, Point corner, const Span& across, const Span& down,
                   std::uint64_t whole) {
  Mean mean;
  const int right = std::min(corner.x + across.end, picture.width());
  const int bottom = std::min(corner.y + down.end, picture.height());
  for (int y = std::max(0, corner.y + down.first); y < bottom; ++y) {
    const std::uint64_t share = down.share(y - corner.y);
    for (int x = std::max(0, corner.x + across.first); x < right; ++x)
      mean.add(picture.pixel(x, y), share * across.share(x - corner.x));
  }
  return mean.pixel(whole);
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
  const auto shares = static_cast<std::uint64_t>(from.width) * static_cast<std::uint64_t>(from.height);
  for (int y = area.top; y < area.bottom(); ++y) {
    const Span down(y - whole.top, from.height, to.height);
    for (int x = area.left; x < area.right(); ++x) {
      const Span across(x - whole.left, from.width, to.width);
      std::uint32_t& pixel = row(y)[x];
      pixel = mixed(pixel, mean(picture, {from.left, from.top}, across, down, shares));
    }
  }
}

void Surface::draw(const Bitmap& picture, Point at, Scale scale) {
  const Size size = scale.ofPicture(picture.width(), picture.height());
  copy(picture, {0, 0, picture.width(), picture.height()}, {at.x, at.y, size.width, size.height});
}

void Surface::frame(const Bitmap& picture, const Box& from, int edge, const Box& to, Scale scale) {
  const int wide = edge * scale.line();
  const struct {
    int from, fromLength, to, toLength;
  } columns[] = {{from.left, edge, to.left, wide},
                 {from.left + edge, from.width - 2 * edge, to.left + wide, to.width - 2 * wide},
                 {from.right() - edge, edge, to.right() - wide, wide}},
    rows[] = {{from.top, edge, to.top, wide},
              {from.top + edge, from.height - 2 * edge, to.top + wide, to.height - 2 * wide},
              {from.bottom() - edge, edge, to.bottom() - wide, wide}};
  for (const auto& row : rows) {
    for (const auto& column : columns)
      copy(picture, {column.from, row.from, column.fromLength, row.fromLength},
           {column.to, row.to, column.toLength, row.toLength});
  }
}

}  // namespace zub::controls
