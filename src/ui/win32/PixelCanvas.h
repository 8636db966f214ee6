// Pixels in memory that both the kit and GDI can paint on. Where the system has no room for them the surface is
// empty, and nothing is painted.
#pragma once

#include "platform/win32/WindowsHeader.h"
#include "ui/controls/Surface.h"

namespace zub {

class PixelCanvas {
 public:
  PixelCanvas(int width, int height);
  PixelCanvas(const PixelCanvas&) = delete;
  PixelCanvas& operator=(const PixelCanvas&) = delete;
  ~PixelCanvas();

  HDC dc() const { return dc_; }
  int width() const { return width_; }
  int height() const { return height_; }
  controls::Surface surface();

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_;
  HGDIOBJ before_;
  void* pixels_ = nullptr;
};

}  // namespace zub
