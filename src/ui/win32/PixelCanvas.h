// Pixels in memory that both the kit and GDI can paint on. One for the whole program: Windows 98 has room for few
// of the system's bitmaps and device contexts, so that no control keeps one of its own.
#pragma once

#include "platform/host/win32/WindowsHeader.h"
#include "ui/controls/Surface.h"

namespace zub {

class PixelCanvas {
 public:
  PixelCanvas();
  PixelCanvas(const PixelCanvas&) = delete;
  PixelCanvas& operator=(const PixelCanvas&) = delete;
  ~PixelCanvas();

  HDC dc() const { return dc_; }
  // The upper left part of the pixels, as the last painter left it. It is there until the next call.
  controls::Surface surface(int width, int height);

 private:
  void grow(int width, int height);
  void dropBitmap();

  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  void* pixels_ = nullptr;
  int width_ = 0;
  int height_ = 0;
};

}  // namespace zub
