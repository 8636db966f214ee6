#include "app/console/Printable.h"

#include <string_view>
#include <utility>

namespace zub {
namespace {

bool isControl(char c) {
  return static_cast<unsigned char>(c) < 32 || c == 127;
}

// U+0080 to U+009F are 80 to 9F behind a C2.
void replaceHighControls(std::string& text) {
  for (auto place = text.find('\xC2'); place != std::string::npos; place = text.find('\xC2', place + 1)) {
    if (place + 1 < text.size() && (static_cast<unsigned char>(text[place + 1]) & 0xE0) == 0x80) {
      text.replace(place, 2, "?");
    }
  }
}

std::string replaced(std::string text, std::string_view kept) {
  for (char& c : text) {
    if (isControl(c) && kept.find(c) == std::string_view::npos) c = '?';
  }
  replaceHighControls(text);
  return text;
}

}  // namespace

std::string printable(std::string text) {
  return replaced(std::move(text), "\t");
}

std::string printableLines(std::string text) {
  return replaced(std::move(text), "\t\n");
}

}  // namespace zub
