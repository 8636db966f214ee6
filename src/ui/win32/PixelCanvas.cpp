#include "ui/win32/PixelCanvas.h"

#include <algorithm>
#include <cstdint>

namespace zub {

PixelCanvas::PixelCanvas(int width, int height)
    : width_(std::max(1, width)), height_(std::max(1, height)), dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width_;
  info.bmiHeader.biHeight = -height_;  // the top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &pixels_, nullptr, 0);
  before_ = SelectObject(dc_, bitmap_);
}

PixelCanvas::~PixelCanvas() {
  SelectObject(dc_, before_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

controls::Surface PixelCanvas::surface() {
  GdiFlush();
  if (bitmap_ == nullptr) return {nullptr, 0, 0};
  return {static_cast<std::uint32_t*>(pixels_), width_, height_};
}

}  // namespace zub
