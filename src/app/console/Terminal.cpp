#include "app/console/Terminal.h"

#include <cstdio>

#include "base/Text.h"

namespace zub::terminal {

void flush(Stream stream) {
  std::fflush(stream == Stream::Output ? stdout : stderr);
}

bool outputWritten() {
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

std::string programName(std::string_view path) {
  std::string name(path.substr(std::min(path.find_last_of("/\\") + 1, path.size())));
  constexpr std::string_view extension = ".EXE";
  if (upperAscii(name).ends_with(extension)) name.resize(name.size() - extension.size());
  return name.empty() ? "zub" : name;
}

}  // namespace zub::terminal
