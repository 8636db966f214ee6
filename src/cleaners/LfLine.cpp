#include "cleaners/LfLine.h"

namespace zub {

bool readLfLine(FileReader& file, std::string& line) {
  line.clear();
  for (int c = file.get(); c != -1; c = file.get()) {
    if (c == '\n') return true;
    line += static_cast<char>(c);
  }
  return false;
}

}  // namespace zub
