// What becomes of things in the steps of a short story, as a text for checkGolden: behind each step stand the things
// that are not as they were; of the first chapter all that are not empty.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zub {

// The text on one line, with what does not print as \r, \n, \t or \xE4.
inline std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    char hex[8];
    std::snprintf(hex, sizeof hex, c >= ' ' && c <= '~' ? "%c" : "\\x%02X", static_cast<unsigned char>(c));
    line += c == '\r' ? "\\r" : c == '\n' ? "\\n" : c == '\t' ? "\\t" : hex;
  }
  return line;
}

class Story {
 public:
  using Things = std::vector<std::pair<std::string, std::string>>;  // names, and what to tell of each

  std::function<Things()> look;
  std::string text;

  void chapter(std::string_view title) {
    text.append(text.empty() ? "# " : "\n# ").append(title) += '\n';
    tellChanges();
  }
  template <class Action>
  void step(std::string_view what, Action action) {
    text.append("- ").append(onOneLine(what)) += '\n';
    action();
    tellChanges();
  }
  // Takes things as they are, untold.
  void settle() { last_ = look(); }

 private:
  void tellChanges() {
    Things now = look();
    for (std::size_t place = 0; place < now.size(); ++place) {
      const std::string before = place < last_.size() ? last_[place].second : "";
      if (now[place].second != before)
        text.append("    ").append(now[place].first).append(": ").append(onOneLine(now[place].second)) +=
            '\n';
    }
    last_ = std::move(now);
  }

  Things last_;
};

}  // namespace zub
