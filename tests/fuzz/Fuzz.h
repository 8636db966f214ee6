// What the fuzz targets share: each defines `fuzz`, and requires what holds for any input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "support/WashFixture.h"

namespace zub {

inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

void fuzz(std::string_view bytes);

}  // namespace zub

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zub::fuzz({reinterpret_cast<const char*>(data), size});
  return 0;
}
