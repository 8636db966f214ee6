#include "windows/Screen.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "windows/Pc.h"

namespace zub::drive {

int contrastIn(const RECT& part) {
  const HDC screen = GetDC(nullptr);
  const auto pixel = [&](LONG x, LONG y) {
    return GetPixel(screen, static_cast<int>(x), static_cast<int>(y));
  };
  const COLORREF corner = pixel(part.left, part.top);
  int most = 0;
  for (LONG y = part.top; y < part.bottom; ++y) {
    for (LONG x = part.left; x < part.right; ++x) {
      const COLORREF here = pixel(x, y);
      most = std::max(most, std::abs(GetRValue(here) - GetRValue(corner)) +
                                std::abs(GetGValue(here) - GetGValue(corner)) +
                                std::abs(GetBValue(here) - GetBValue(corner)));
    }
  }
  ReleaseDC(nullptr, screen);
  return most;
}

void savePicture(const std::filesystem::path& file, const RECT& part) {
  const LONG width = part.right - part.left, height = part.bottom - part.top;
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, static_cast<int>(width), static_cast<int>(height));
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, static_cast<int>(width), static_cast<int>(height), screen, static_cast<int>(part.left),
         static_cast<int>(part.top), SRCCOPY);
  SelectObject(memory, before);

  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = width;
  info.biHeight = height;
  info.biPlanes = 1;
  info.biBitCount = 24;
  std::vector<char> pixels(static_cast<std::size_t>((width * 3 + 3) / 4 * 4 * height));
  GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), reinterpret_cast<BITMAPINFO*>(&info),
            DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);

  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;  // "BM"
  header.bfOffBits = sizeof header + sizeof info;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(pixels.size());
  std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
  bytes.append(reinterpret_cast<const char*>(&info), sizeof info).append(pixels.data(), pixels.size());
  pc::put(file, bytes);
}

}  // namespace zub::drive
