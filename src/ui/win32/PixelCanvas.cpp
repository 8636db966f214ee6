#include "ui/win32/PixelCanvas.h"

#include <algorithm>
#include <cstdint>

namespace zub {

PixelCanvas::PixelCanvas() : dc_(CreateCompatibleDC(nullptr)) {}

PixelCanvas::~PixelCanvas() {
  dropBitmap();
  DeleteDC(dc_);
}

controls::Surface PixelCanvas::surface(int width, int height) {
  if (width > width_ || height > height_) grow(std::max(width, width_), std::max(height, height_));
  GdiFlush();
  return controls::Surface(static_cast<std::uint32_t*>(pixels_), width_, height_)
      .within({0, 0, pixels_ != nullptr ? width : 0, height});
}

void PixelCanvas::grow(int width, int height) {
  dropBitmap();
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels_, nullptr, 0);
  if (bitmap_ == nullptr) return;
  before_ = SelectObject(dc_, bitmap_);
  width_ = width;
  height_ = height;
}

void PixelCanvas::dropBitmap() {
  if (bitmap_ == nullptr) return;
  SelectObject(dc_, before_);
  DeleteObject(bitmap_);
  bitmap_ = nullptr;
  pixels_ = nullptr;
  width_ = height_ = 0;
}

}  // namespace zub
