// A file that the build put into the program (zub_embed in cmake/Embed.cmake declares the functions that list them).
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace zub {

struct EmbeddedFile {
  std::string_view name;  // without its folder
  const unsigned char* bytes;
  std::size_t size;

  std::string_view text() const { return {reinterpret_cast<const char*>(bytes), size}; }
};

}  // namespace zub
