// A surface that owns its memory.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "ui/controls/Control.h"

namespace zub::controls {

class Canvas {
 public:
  // In the colour of a page.
  Canvas(int width, int height)
      : width_(width),
        height_(height),
        pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
    surface().clear(colors::Page);
  }
  // A control as it looks now, at its own size.
  static Canvas of(const Control& control) {
    Canvas canvas(control.width(), control.height());
    Surface surface = canvas.surface();
    control.paint(surface);
    return canvas;
  }

  bool operator==(const Canvas&) const = default;
  int width() const { return width_; }
  int height() const { return height_; }
  Surface surface() { return Surface(pixels_.data(), width_, height_); }
  // 0x00RRGGBB
  std::uint32_t at(int x, int y) const { return pixels_[place(x, y)]; }
  // A character for each of the colours 0 to 35, `?` for any other.
  char sign(int x, int y) const {
    return at(x, y) < 36 ? "0123456789abcdefghijklmnopqrstuvwxyz"[at(x, y)] : '?';
  }
  // The signs, a line for each row.
  std::string drawing() const {
    std::string text;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) text += sign(x, y);
      text += '\n';
    }
    return text;
  }
  // The other one must lie inside.
  void put(const Canvas& other, int left, int top) {
    for (int y = 0; y < other.height_; ++y)
      std::copy_n(&other.pixels_[other.place(0, y)], other.width_, &pixels_[place(left, top + y)]);
  }

 private:
  std::size_t place(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }

  int width_, height_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace zub::controls
