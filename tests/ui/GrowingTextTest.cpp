#include <doctest/doctest.h>

#include "ui/GrowingText.h"

using namespace zub;

TEST_CASE("a text that grows beyond its room loses its beginning, in whole lines, and says so") {
  constexpr std::size_t Room = 400;
  GrowingText growing(Room);
  std::string text, shown, lastLine;
  bool isCut = false;
  int beginnings = 0;
  for (int line = 0; line < 100; ++line) {
    lastLine = "line " + std::to_string(line) + "\r\n";
    text += lastLine;
    const auto change = growing.follow(text);
    REQUIRE(change);
    beginnings += change->anew ? 1 : 0;
    shown = change->anew ? change->text : shown + change->text;
    REQUIRE(shown.size() <= Room);
    isCut = text.size() > Room;
    if (!isCut) {
      REQUIRE(shown == text);
      continue;
    }
    REQUIRE(shown.starts_with(GrowingText::LeftOut));
    const std::string end = shown.substr(GrowingText::LeftOut.size());
    REQUIRE(end.starts_with("line "));
    REQUIRE(text.ends_with(end));
    REQUIRE(end.ends_with(lastLine));
  }
  CHECK(isCut);
  CHECK(beginnings > 1);
  CHECK(beginnings < 10);
  CHECK_FALSE(growing.follow(text));
  // The next wash begins a report of its own.
  const auto next = growing.follow("short\r\n");
  REQUIRE(next);
  CHECK(next->anew);
  CHECK(next->text == "short\r\n");
}
