// How a window follows a text that grows: by what comes to what it shows already, so that a long report costs no more
// than its last lines. Where the window has no room for the whole text, its beginning is left out, which a line at the
// top tells.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zub {

class GrowingText {
 public:
  static constexpr std::string_view LeftOut =
      "(The beginning is left out: Windows has no room for the whole report here.)\r\n";

  struct Change {
    bool anew;         // in place of what is shown, or behind it
    std::string text;  // whole lines, as they were added
  };

  // `room`: the bytes that the window can show.
  explicit GrowingText(std::size_t room) : room_(room) {}

  // What brings the window up to this text; nothing where it shows it.
  std::optional<Change> follow(const std::string& text);

 private:
  Change begin(std::string text);

  std::size_t room_;
  std::string followed_;   // the whole text
  std::size_t shown_ = 0;  // bytes in the window
};

}  // namespace zub
