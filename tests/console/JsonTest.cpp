#include <doctest/doctest.h>

#include "app/console/Json.h"

using namespace zub;

TEST_CASE("a text in JSON is whole, whatever it holds") {
  const struct {
    std::string utf8, json;
  } rows[] = {
      {"", R"("")"},
      {R"(C:\a "b")", R"("C:\\a \"b\"")"},
      {std::string("\x01\x1b[1m\t\r\n\0\x7f", 10), R"("\u0001\u001b[1m\t\u000d\u000a\u0000\u007f")"},
      {"\xc2\x9b"
       "2J\xc2\xa0",
       "\"\\u009b2J\xc2\xa0\""},  // the terminal's high controls
      {"\xc3\xa9\xf0\x9f\x98\x80", "\"\xc3\xa9\xf0\x9f\x98\x80\""},
      {"a\xe9"
       "b\xed\xa0\x80"
       "c\xf0\x9f",
       "\"a\xef\xbf\xbd"
       "b\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"
       "c\xef\xbf\xbd\xef\xbf\xbd\""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.json);
    CHECK(jsonText(row.utf8) == row.json);
  }
}
