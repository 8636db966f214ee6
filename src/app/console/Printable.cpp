#include "app/console/Printable.h"

namespace zub {
namespace {

bool isControl(char c) {
  return (static_cast<unsigned char>(c) < 32 && c != '\t') || c == 127;
}

// U+0080 to U+009F are 80 to 9F behind a C2.
void replaceHighControls(std::string& text) {
  for (auto place = text.find('\xC2'); place != std::string::npos; place = text.find('\xC2', place + 1)) {
    if (place + 1 < text.size() && (static_cast<unsigned char>(text[place + 1]) & 0xE0) == 0x80) {
      text.replace(place, 2, "?");
    }
  }
}

}  // namespace

std::string printable(std::string text) {
  for (char& c : text) {
    if (isControl(c)) c = '?';
  }
  replaceHighControls(text);
  return text;
}

std::string printableLines(std::string text) {
  for (char& c : text) {
    if (isControl(c) && c != '\n') c = '?';
  }
  return text;
}

}  // namespace zub
