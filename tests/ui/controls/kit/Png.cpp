#include "kit/Png.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
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

// One deflate block with the fixed codes.
class Deflater {
 public:
  std::string pack(std::string_view data) {
    bits(1, 1);                                    // the last block
    bits(1, 2);                                    // fixed codes
    std::map<std::string_view, std::size_t> seen;  // where three bytes were met last
    for (std::size_t at = 0; at < data.size();) {
      const std::string_view key = data.substr(at, 3);
      const auto before = seen.find(key);
      std::size_t length = 0, distance = 0;
      if (key.size() == 3 && before != seen.end() && at - before->second <= 32768) {
        distance = at - before->second;
        while (length < 258 && at + length < data.size() && data[at + length] == data[at + length - distance])
          ++length;
      }
      if (length >= 3) {
        match(length, distance);
      } else {
        length = 1;
        symbol(static_cast<unsigned char>(data[at]));
      }
      for (; length > 0; --length, ++at) seen.insert_or_assign(data.substr(at, 3), at);
    }
    symbol(256);
    bits(0, 7);
    return packed_;
  }

 private:
  void bits(std::size_t value, unsigned count) {
    for (unsigned i = 0; i < count; ++i) {
      pending_ |= (value >> i & 1U) << held_;
      if (++held_ < 8) continue;
      packed_ += static_cast<char>(pending_);
      pending_ = held_ = 0;
    }
  }

  // Codes run from their highest bit.
  void code(std::size_t value, unsigned count) {
    for (unsigned i = count; i-- > 0;) bits(value >> i & 1U, 1);
  }

  void symbol(std::size_t value) {
    if (value < 144)
      code(0x30 + value, 8);
    else if (value < 256)
      code(0x190 + value - 144, 9);
    else if (value < 280)
      code(value - 256, 7);
    else
      code(0xC0 + value - 280, 8);
  }

  // Lengths and distances are grouped: `groups` codes to each number of extra bits.
  struct Group {
    std::size_t code, base;
    unsigned extra;
  };
  static Group groupOf(std::size_t value, std::size_t first, std::size_t groups) {
    Group group = {0, first, 0};
    std::size_t span = 1;
    for (;; ++group.code) {
      if (group.code >= 2 * groups && group.code % groups == 0) ++group.extra, span *= 2;
      if (value < group.base + span) return group;
      group.base += span;
    }
  }

  void match(std::size_t length, std::size_t distance) {
    if (length == 258) {
      symbol(285);
    } else {
      const Group group = groupOf(length, 3, 4);
      symbol(257 + group.code);
      bits(length - group.base, group.extra);
    }
    const Group group = groupOf(distance, 1, 2);
    code(group.code, 5);
    bits(distance - group.base, group.extra);
  }

  std::string packed_;
  std::size_t pending_ = 0;
  unsigned held_ = 0;
};

}  // namespace

std::string pngOf(const Canvas& canvas) {
  std::string rows;
  for (int y = 0; y < canvas.height(); ++y) {
    rows += '\0';  // no filter
    for (int x = 0; x < canvas.width(); ++x)
      for (const unsigned shift : {16U, 8U, 0U}) rows += static_cast<char>(canvas.at(x, y) >> shift & 0xFFU);
  }
  const std::string header = bigEndian(static_cast<std::uint32_t>(canvas.width())) +
                             bigEndian(static_cast<std::uint32_t>(canvas.height())) +
                             std::string("\x08\x02\0\0\0", 5);
  const std::string stream = "\x78\x01" + Deflater().pack(rows) + bigEndian(adler32(rows));
  return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) + chunk("IDAT", stream) + chunk("IEND", "");
}

bool writeFile(const std::string& path, const std::string& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace zub::controls
