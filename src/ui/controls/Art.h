// The pictures that the program carries, by name.
#pragma once

#include <map>
#include <span>
#include <string_view>

#include "base/Embedded.h"
#include "state/Controls.h"
#include "ui/controls/Bitmap.h"

namespace zub {

// The files of the pictures that are built into the program.
std::span<const EmbeddedFile> artFiles();

}  // namespace zub

namespace zub::controls {

class Art {
 public:
  // The files' names must outlive the object.
  explicit Art(std::span<const EmbeddedFile> files = artFiles());

  // By the name of its file without ".qoi"; the empty picture where there is none.
  const Bitmap& operator[](std::string_view name) const;

 private:
  std::map<std::string_view, Bitmap> pictures_;
  Bitmap none_;
};

// The name of a picture that a form shows; empty for none.
std::string_view artOf(Picture picture);

}  // namespace zub::controls
