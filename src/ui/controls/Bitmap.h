// A picture: a look into the bytes of a bitmap file, which must outlive it.
#pragma once

#include <cstdint>
#include <span>

namespace zub::controls {

class Bitmap {
 public:
  // The empty picture, 0 by 0.
  Bitmap() = default;
  // Takes uncompressed files of 32 bits a pixel with the bottom row first, up to 4096 pixels a side. Anything
  // else, a file that is cut short included, gives the empty picture.
  explicit Bitmap(std::span<const unsigned char> file);

  int width() const { return width_; }
  int height() const { return height_; }
  // 0xAARRGGBB; the colours are not multiplied by the opacity. The place must lie inside.
  std::uint32_t pixel(int x, int y) const;

 private:
  int width_ = 0;
  int height_ = 0;
  const unsigned char* bottomRow_ = nullptr;
};

}  // namespace zub::controls
