// The words of a preview, for the console and for the window. In the PC's code page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/Preview.h"

namespace zub {

inline constexpr std::string_view PreviewHeading = "PREVIEW: nothing has been removed. A wash would report:";

// "2 files of 14 bytes, 1 folder, 0 registry keys, 1 value"
std::string sumsText(const Preview::Sums& sums);
// The lines at the end.
std::vector<std::string> closingLines(const Preview::Sums& sums);

}  // namespace zub
