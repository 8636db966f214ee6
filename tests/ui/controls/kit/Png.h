// Writes pictures as PNG, 24 bits a pixel. The packer is a small one of our own, so that the same picture always
// gives the same bytes.
#pragma once

#include <string>

#include "kit/Canvas.h"

namespace zub::controls {

std::string pngOf(const Canvas& canvas);
// Whether the file could be written.
bool writeFile(const std::string& path, const std::string& bytes);

}  // namespace zub::controls
