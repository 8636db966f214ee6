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
  // Steps inside the action stand below the step, and what it has come to when they are over behind them.
  template <class Action>
  void step(std::string_view what, Action action) {
    text.append(depth_ * 2, ' ').append("- ").append(onOneLine(what)) += '\n';
    const std::size_t inside = text.size();
    {
      const Deeper deeper(depth_);
      action();
    }
    if (text.size() != inside) text.append(depth_ * 2, ' ') += "- and then\n";
    tellChanges();
  }
  // Takes things as they are, untold.
  void settle() { last_ = look(); }

 private:
  struct Deeper {
    explicit Deeper(std::size_t& counted) : depth(counted) { ++depth; }
    ~Deeper() { --depth; }
    std::size_t& depth;
  };
  void tellChanges() {
    Things now = look();
    for (std::size_t place = 0; place < now.size(); ++place) {
      const std::string before = place < last_.size() ? last_[place].second : "";
      if (now[place].second != before)
        text.append(depth_ * 2 + 4, ' ')
            .append(now[place].first)
            .append(": ")
            .append(onOneLine(now[place].second)) += '\n';
    }
    last_ = std::move(now);
  }

  Things last_;
  std::size_t depth_ = 0;
};

}  // namespace zub
