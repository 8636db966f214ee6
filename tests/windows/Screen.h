// Pictures of the screen.
#pragma once

#include <windows.h>

#include <filesystem>

namespace zub::drive {

// Writes a part of the screen as a bitmap file of 24 bits a pixel.
void savePicture(const std::filesystem::path& file, const RECT& part);

}  // namespace zub::drive
