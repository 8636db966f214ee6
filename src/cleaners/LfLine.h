// The browsers end the lines of their cookie files in a line feed alone.
#pragma once

#include <string>

#include "platform/FileReader.h"

namespace zub {

// The next line without its line feed; a carriage return stays in it. False at the end: text behind the last
// line feed is no line. RuntimeError where the file cannot be read.
bool readLfLine(FileReader& file, std::string& line);

}  // namespace zub
