#include "ui/controls/Bitmap.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zub::controls {
namespace {

constexpr std::uint32_t Mark = 0x716F6966;  // "qoif"
constexpr std::size_t HeaderSize = 14;
constexpr std::size_t EndSize = 8;
constexpr std::uint32_t LongestSide = 4096;

std::uint32_t number(std::span<const unsigned char> bytes) {
  std::uint32_t value = 0;
  for (const unsigned char byte : bytes) value = value << 8U | byte;
  return value;
}

struct Color {
  std::uint8_t red = 0, green = 0, blue = 0, opacity = 0;

  void add(unsigned reds, unsigned greens, unsigned blues) {
    red = static_cast<std::uint8_t>(red + reds);
    green = static_cast<std::uint8_t>(green + greens);
    blue = static_cast<std::uint8_t>(blue + blues);
  }
  // Its place among the colours seen lately.
  std::size_t place() const { return (red * 3U + green * 5U + blue * 7U + opacity * 11U) % 64U; }
  std::uint32_t pixel() const {
    return std::uint32_t{opacity} << 24U | std::uint32_t{red} << 16U | std::uint32_t{green} << 8U | blue;
  }
};

// The pixels of a file, one chunk after the other. A chunk's two highest bits tell its kind.
class Unpacker {
 public:
  explicit Unpacker(std::span<const unsigned char> chunks) : chunks_(chunks) {}

  // False where the chunks end before the pixels do.
  bool fill(std::span<std::uint32_t> pixels) {
    while (!pixels.empty()) {
      if (chunks_.empty()) return false;
      const std::size_t count = std::min(nextChunk(), pixels.size());
      if (failed_) return false;
      std::ranges::fill(pixels.first(count), color_.pixel());
      pixels = pixels.subspan(count);
    }
    return true;
  }

 private:
  // Sets the colour; returns how many pixels have it.
  std::size_t nextChunk() {
    const unsigned head = take();
    const unsigned low = head & 0x3FU;
    std::size_t count = 1;
    if (head >= 0xFE) {
      color_.red = take(), color_.green = take(), color_.blue = take();
      if (head == 0xFF) color_.opacity = take();
    } else if (head >= 0xC0) {
      count = low + 1;
    } else if (head >= 0x80) {
      const unsigned second = take(), greens = low - 32;
      color_.add(greens + (second >> 4U) - 8, greens, greens + (second & 0xFU) - 8);
    } else if (head >= 0x40) {
      color_.add((low >> 4U) - 2, (low >> 2U & 3U) - 2, (low & 3U) - 2);
    } else {
      color_ = seen_[low];
    }
    seen_[color_.place()] = color_;
    return count;
  }

  std::uint8_t take() {
    if (chunks_.empty()) {
      failed_ = true;
      return 0;
    }
    const std::uint8_t byte = chunks_.front();
    chunks_ = chunks_.subspan(1);
    return byte;
  }

  std::span<const unsigned char> chunks_;
  std::array<Color, 64> seen_{};
  Color color_{0, 0, 0, 0xFF};
  bool failed_ = false;
};

}  // namespace

Bitmap::Bitmap(std::span<const unsigned char> file) {
  if (file.size() < HeaderSize + EndSize || number(file.first(4)) != Mark) return;
  const std::uint32_t width = number(file.subspan(4, 4));
  const std::uint32_t height = number(file.subspan(8, 4));
  if (width == 0 || width > LongestSide || height == 0 || height > LongestSide) return;
  std::vector<std::uint32_t> pixels(std::size_t{width} * height);
  if (!Unpacker(file.subspan(HeaderSize, file.size() - HeaderSize - EndSize)).fill(pixels)) return;
  width_ = static_cast<int>(width);
  height_ = static_cast<int>(height);
  pixels_ = std::move(pixels);
}

}  // namespace zub::controls
