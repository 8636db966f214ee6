// Pictures of the screen.
#pragma once

#include <windows.h>

#include <filesystem>

namespace zub::drive {

// How much the pixels of a part of the screen differ from that in its corner, at most: 0 to 3 * 255.
int contrastIn(const RECT& part);

// Writes a part of the screen as a bitmap file of 24 bits a pixel.
void savePicture(const std::filesystem::path& file, const RECT& part);

}  // namespace zub::drive
