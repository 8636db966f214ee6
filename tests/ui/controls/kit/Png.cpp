#include "kit/Png.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace zub::controls {

namespace {

std::string bigEndian(std::uint32_t value) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFFU);
  return bytes;
}

std::uint32_t crc32(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const char byte : bytes) {
    crc ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) crc = crc >> 1U ^ (crc & 1U ? 0xEDB88320U : 0U);
  }
  return ~crc;
}

std::uint32_t adler32(std::string_view bytes) {
  std::uint32_t a = 1, b = 0;
  for (const char byte : bytes) {
    a = (a + static_cast<unsigned char>(byte)) % 65521;
    b = (b + a) % 65521;
  }
  return b << 16U | a;
}

std::string chunk(std::string_view type, std::string_view data) {
  const std::string body = std::string(type) + std::string(data);
  return bigEndian(static_cast<std::uint32_t>(data.size())) + body + bigEndian(crc32(body));
}

// One deflate block with the fixed codes. It packs pixels that repeat the one before them, and no more: with the
// lengths 3 to 10 and 258, whose codes need no further bits.
std::string deflated(std::string_view data) {
  constexpr std::size_t Pixel = 3;
  std::string bits = "110";  // the last block; fixed codes
  const auto code = [&](std::size_t value, unsigned count) {
    while (count-- > 0) bits += (value >> count & 1U) != 0 ? '1' : '0';
  };
  for (std::size_t at = 0; at < data.size();) {
    std::size_t run = 0;
    while (at >= Pixel && run < 258 && at + run < data.size() && data[at + run] == data[at + run - Pixel])
      ++run;
    if (run >= 3) {
      if (run < 258) run = std::min<std::size_t>(run, 10);
      run == 258 ? code(0xC5, 8) : code(run - 2, 7);
      code(2, 5);  // three bytes back
      at += run;
    } else {
      const std::size_t byte = static_cast<unsigned char>(data[at++]);
      byte < 144 ? code(0x30 + byte, 8) : code(0x100 + byte, 9);
    }
  }
  code(0, 7);
  bits.resize((bits.size() + 7) / 8 * 8, '0');
  std::string packed;
  for (std::size_t at = 0; at < bits.size(); at += 8) {
    unsigned byte = 0;
    for (std::size_t bit = 8; bit-- > 0;) byte = byte << 1U | (bits[at + bit] == '1' ? 1U : 0U);
    packed += static_cast<char>(byte);
  }
  return packed;
}

}  // namespace

std::string pngOf(const Canvas& canvas) {
  std::string rows;
  for (int y = 0; y < canvas.height(); ++y) {
    rows += '\x02';  // told as the difference from the row above
    for (int x = 0; x < canvas.width(); ++x)
      for (const unsigned shift : {16U, 8U, 0U})
        rows += static_cast<char>((canvas.at(x, y) >> shift) - (y == 0 ? 0 : canvas.at(x, y - 1) >> shift));
  }
  const std::string header = bigEndian(static_cast<std::uint32_t>(canvas.width())) +
                             bigEndian(static_cast<std::uint32_t>(canvas.height())) +
                             std::string("\x08\x02\0\0\0", 5);
  const std::string stream = "\x78\x01" + deflated(rows) + bigEndian(adler32(rows));
  return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) + chunk("IDAT", stream) + chunk("IEND", "");
}

bool writeFile(const std::string& path, const std::string& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace zub::controls
