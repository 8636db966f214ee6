// Pictures that a test paints itself, as the files that the program would carry.
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

inline std::vector<unsigned char> pictureFile(int width, int height, const PixelAt& pixelAt) {
  std::vector<unsigned char> bytes = {'q', 'o', 'i', 'f'};
  const auto number = [&](std::uint32_t value) {
    for (int bits = 24; bits >= 0; bits -= 8) bytes.push_back(static_cast<unsigned char>(value >> bits));
  };
  number(static_cast<std::uint32_t>(width));
  number(static_cast<std::uint32_t>(height));
  bytes.insert(bytes.end(), {4, 0});  // channels, and how they are to be taken
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::uint32_t pixel = pixelAt(x, y);
      bytes.push_back(0xFF);  // the whole colour follows
      number(pixel << 8U | pixel >> 24U);
    }
  }
  bytes.insert(bytes.end(), {0, 0, 0, 0, 0, 0, 0, 1});
  return bytes;
}

class PaintedArt {
 public:
  PaintedArt& add(const std::string& name, int width, int height, const PixelAt& pixelAt) {
    names_.push_back(name + ".qoi");
    bytes_.push_back(pictureFile(width, height, pixelAt));
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
