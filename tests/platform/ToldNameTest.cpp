#include <doctest/doctest.h>

#include <map>

#include "platform/ToldName.h"

using namespace zub;

namespace {

// A part of code page 932, in which the second byte of a character may be that of a backslash.
std::string ansiOf932(char16_t unit) {
  static const std::map<char16_t, std::string> beyondAscii = {
      {u'\u3042', "\x82\xA0"}, {u'\u30BD', "\x83\x5C"}, {u'\u8868', "\x95\x5C"}, {u'\uFF9E', "\xDE"}};
  if (unit < 0x80) return {static_cast<char>(unit)};
  const auto found = beyondAscii.find(unit);
  return found != beyondAscii.end() ? found->second : std::string();
}

}  // namespace

TEST_CASE("in a double-byte code page no told name holds a backslash, and each leads back") {
  const struct {
    std::u16string name;
    const char* told;
  } rows[] = {
      {u"\u3042.tmp", "\x82\xA0.tmp"}, {u"\u8868", "<8868>"},
      {u"\u30BD.tmp", "<30BD>.tmp"},   {u"a\u30BD\u8868\u3042\u30BDb", "a<30BD8868>\x82\xA0<30BD>b"},
      {u"\u8868\\b", "<8868005C>b"},   {u"\u0101\uFF9E", "<0101>\xDE"},
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.told));
    CHECK(toldFileName(row.name, ansiOf932) == row.told);
    // As the system makes it wide again: by then a stand-in is all that is left of what is no plain letter.
    std::u16string wide;
    for (std::string_view rest = row.told; !rest.empty();) {
      const bool two = rest.starts_with("\x82\xA0");
      wide += two ? u'\u3042' : rest.front() == '\xDE' ? u'\uFF9E' : static_cast<char16_t>(rest.front());
      rest.remove_prefix(two ? 2 : 1);
    }
    CHECK(untold(wide) == row.name);
  }
  // Of a path only the character itself is a stand-in.
  CHECK(toldText(u"C:\\\u8868\\\u30BD.tmp", ansiOf932) == "C:\\<8868>\\<30BD>.tmp");
}
