// Pictures that a test paints itself, as the bitmap files that the program would carry.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "ui/controls/Art.h"

namespace zub::controls {

// 0xAARRGGBB at a place.
using PixelAt = std::function<std::uint32_t(int x, int y)>;

inline constexpr std::uint32_t Opaque = 0xFF000000;

inline std::vector<unsigned char> bitmapFile(int width, int height, const PixelAt& pixelAt) {
  std::vector<unsigned char> bytes = {'B', 'M'};
  const auto number = [&](std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i, value >>= 8U) bytes.push_back(static_cast<unsigned char>(value & 0xFFU));
  };
  const auto size = static_cast<std::uint32_t>(width * height * 4);
  for (const std::uint32_t value : {54 + size, 0U, 54U, 40U}) number(value, 4);
  number(static_cast<std::uint32_t>(width), 4);
  number(static_cast<std::uint32_t>(height), 4);
  number(1, 2);
  number(32, 2);
  for (const std::uint32_t value : {0U, size, 0U, 0U, 0U, 0U}) number(value, 4);
  for (int y = height - 1; y >= 0; --y)
    for (int x = 0; x < width; ++x) number(pixelAt(x, y), 4);
  return bytes;
}

class PaintedArt {
 public:
  PaintedArt& add(const std::string& name, int width, int height, const PixelAt& pixelAt) {
    names_.push_back(name + ".bmp");
    bytes_.push_back(bitmapFile(width, height, pixelAt));
    files_.push_back({names_.back(), bytes_.back().data(), bytes_.back().size()});
    return *this;
  }
  // Pictures of one colour each: 0, 1, 2 and so on.
  PaintedArt& addPlain(std::initializer_list<const char*> names, int width, int height) {
    std::uint32_t color = 0;
    for (const char* name : names) {
      add(name, width, height, [color](int, int) { return Opaque | color; });
      ++color;
    }
    return *this;
  }
  Art art() const { return Art(files_); }

 private:
  std::deque<std::string> names_;
  std::deque<std::vector<unsigned char>> bytes_;
  std::vector<EmbeddedFile> files_;
};

}  // namespace zub::controls
