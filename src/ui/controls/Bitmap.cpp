#include "ui/controls/Bitmap.h"

#include <cstddef>

namespace zub::controls {

namespace {

constexpr std::size_t HeaderSize = 54;
constexpr std::uint32_t LongestSide = 4096;

std::uint32_t number(const unsigned char* bytes, int count) {
  std::uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i) value = value << 8U | bytes[i];
  return value;
}

}  // namespace

Bitmap::Bitmap(std::span<const unsigned char> file) {
  if (file.size() < HeaderSize || file[0] != 'B' || file[1] != 'M') return;
  const unsigned char* header = file.data();
  const std::uint32_t offset = number(header + 10, 4);
  const std::uint32_t infoSize = number(header + 14, 4);
  const std::uint32_t width = number(header + 18, 4);
  const std::uint32_t height = number(header + 22, 4);  // a negative one, top row first, is too large
  const std::uint32_t planes = number(header + 26, 2);
  const std::uint32_t bitsPerPixel = number(header + 28, 2);
  const std::uint32_t compression = number(header + 30, 4);
  if (infoSize != 40 || planes != 1 || bitsPerPixel != 32 || compression != 0) return;
  if (width == 0 || width > LongestSide || height == 0 || height > LongestSide) return;
  if (offset < HeaderSize || offset > file.size()) return;
  if (file.size() - offset < std::size_t{width} * height * 4) return;
  width_ = static_cast<int>(width);
  height_ = static_cast<int>(height);
  bottomRow_ = header + offset;
}

std::uint32_t Bitmap::pixel(int x, int y) const {
  return number(bottomRow_ + (static_cast<std::size_t>(height_ - 1 - y) * static_cast<std::size_t>(width_) +
                              static_cast<std::size_t>(x)) *
                                 4,
                4);
}

}  // namespace zub::controls
