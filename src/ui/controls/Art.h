// The pictures that the program carries, by name.
#pragma once

#include <map>
#include <span>
#include <string_view>

#include "base/Embedded.h"
#include "ui/controls/Bitmap.h"

namespace zub {

// The bitmap files that are built into the program.
std::span<const EmbeddedFile> artFiles();

}  // namespace zub

namespace zub::controls {

class Art {
 public:
  // The files must outlive the object.
  explicit Art(std::span<const EmbeddedFile> files = artFiles());

  // By the name of its file without ".bmp"; the empty picture where there is none.
  const Bitmap& operator[](std::string_view name) const;

 private:
  std::map<std::string_view, Bitmap> pictures_;
  Bitmap none_;
};

}  // namespace zub::controls
