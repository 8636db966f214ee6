#include "windows/Screen.h"

#include <string>
#include <vector>

#include "windows/Pc.h"

namespace zub::drive {

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
