// A picture, unpacked from a file in the QOI format: small, and unpacked by a few lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace zub::controls {

class Bitmap {
 public:
  // The empty picture, 0 by 0.
  Bitmap() = default;
  // Up to 4096 pixels a side. Anything that is no such file, one that is cut short included, gives the empty picture.
  explicit Bitmap(std::span<const unsigned char> file);

  int width() const { return width_; }
  int height() const { return height_; }
  // 0xAARRGGBB; the colours are not multiplied by the opacity. The place must lie inside.
  std::uint32_t pixel(int x, int y) const {
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                   static_cast<std::size_t>(x)];
  }

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<std::uint32_t> pixels_;  // the top row first
};

}  // namespace zub::controls
