#include <doctest/doctest.h>

#include <string>
#include <vector>

#include "platform/folder/PcError.h"
#include "platform/folder/RegistryChanges.h"
#include "platform/folder/RegistryText.h"

using namespace zub;
using namespace std::string_literals;

namespace {

constexpr const char* Key = "HKEY_CURRENT_USER\\Software\\T";

std::string utf16(std::string_view ascii) {
  std::string text = "\xFF\xFE";
  for (const char c : ascii) text += {c, '\0'};
  return text;
}

// A text with one key and these lines below it.
std::string oldForm(std::string_view lines) {
  return "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\T]\r\n" + std::string(lines);
}

RegistryTree read(std::string_view text) {
  return readRegistryText(text, "registry.reg");
}

RegistryValue valueIn(RegistryTree& tree, std::string_view name) {
  const RegistryNode* key = tree.find(Key);
  REQUIRE(key != nullptr);
  const RegistryValue* value = key->values.find(name);
  REQUIRE_MESSAGE(value != nullptr, name);
  return *value;
}

}  // namespace

TEST_CASE("every form of data is read into the stored bytes") {
  struct Row {
    std::string line;
    std::string name;
    std::uint32_t type;
    std::string data;
  };
  const std::vector<Row> rows = {
      {"\"a\"=\"text\"\r\n", "A", 1, "text\0"s},
      {"\"a\"=\"\"\r\n", "a", 1, "\0"s},
      {"\"a\"=\"C:\\\\W \\\"x\\\"\"\n", "a", 1, "C:\\W \"x\"\0"s},
      {"\"a\"=\"two\r\nlines\"\r\n", "a", 1, "two\r\nlines\0"s},
      {"@=\"default\"\r\n", "", 1, "default\0"s},
      {"\"with \\\\ and = ]\"=\"\"\r\n", "with \\ and = ]", 1, "\0"s},
      {"\"a\" = dword:0000abCD ; comment\r\n", "a", 4, "\xCD\xAB\0\0"s},
      {"\"a\"=dword:2a\r\n", "a", 4, "\x2A\0\0\0"s},
      {"\"a\"=hex:01,fF\r\n", "a", 3, "\x01\xFF"s},
      {"\"a\"=hex:\r\n", "a", 3, ""},
      {"\"a\"=hex(2):25,41,\\\r\n  42,00\r\n", "a", 2, "%AB\0"s},
      {"\"a\"=hex(0):\r\n", "a", 0, ""},
      {"\"a\"=hex(8000000f):01\r\n", "a", 0x8000000F, "\x01"},
      {"\"a\"=\"\xE4\"\r\n", "\x61", 1, "\xE4\0"s},
  };
  for (const Row& row : rows) {
    CAPTURE(row.line);
    RegistryTree tree = read(oldForm(row.line));
    const RegistryValue value = valueIn(tree, row.name);
    CHECK(value.type == row.type);
    CHECK(value.data == row.data);
  }
}

TEST_CASE("the newer form and the encodings give the same 8-bit content") {
  const std::string lines =
      "[HKEY_CURRENT_USER\\Software\\T]\r\n\"a\"=hex(2):25,00,41,00,00,00\r\n\"b\"=\"x\"\r\n"
      "\"c\"=hex:41,00\r\n\"d\"=hex(7):e4,00,00,00,00,00\r\n";
  const std::string text = "Windows Registry Editor Version 5.00\r\n\r\n" + lines;
  for (const std::string& form : {text, utf16(text), "\xEF\xBB\xBF" + text}) {
    RegistryTree tree = read(form);
    CHECK(valueIn(tree, "a").data == "%A\0"s);
    CHECK(valueIn(tree, "b").data == "x\0"s);
    CHECK(valueIn(tree, "c").data == "A\0"s);
    CHECK(valueIn(tree, "d").data == "\xE4\0\0"s);
  }
  RegistryTree umlaut =
      read("\xEF\xBB\xBFREGEDIT4\n[HKEY_CURRENT_USER\\Software\\T]\n\"\xC3\xA4\"=\"\xE2\x82\xAC\"\n");
  CHECK(valueIn(umlaut, "\xE4").data == "\x80\0"s);
  // What the code page lacks has its stand-in, so that nothing is lost.
  RegistryTree other =
      read("\xEF\xBB\xBFREGEDIT4\n[HKEY_CURRENT_USER\\Software\\T]\n\"\xE6\x97\xA5\"=\"\"\n");
  CHECK(valueIn(other, "<65E5>").data == "\0"s);
}

TEST_CASE(
    "UTF-8 needs no mark where the text can be nothing else, and the program's own texts are never it") {
  const std::string heading = "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\Software\\T]\n";
  RegistryTree utf8 = read(heading + "\"a\"=\"\xC3\xA4\"\n");
  CHECK(valueIn(utf8, "a").data == "\xE4\0"s);
  RegistryTree codePage = read(heading + "\"a\"=\"\xC3\xA4\xE4\"\n");
  CHECK(valueIn(codePage, "a").data == "\xC3\xA4\xE4\0"s);
  RegistryTree tree;
  tree.make(Key)->values["a"] = {1, "\xC3\xA4\0"s};
  const std::string own = writeRegistryText(tree);
  CHECK(isOwnRegistryText(own));
  RegistryTree again = read(own);
  CHECK(valueIn(again, "a").data == "\xC3\xA4\0"s);
}

TEST_CASE("texts that are joined, end a hive with a backslash or name none") {
  const std::string mark = "\xEF\xBB\xBF";
  const std::string newForm =
      "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\T]\r\n";
  const std::string old = oldForm("\"a\"=hex(2):25,00\r\n");
  RegistryTree joint = read(mark + old + mark + newForm + "\"b\"=hex(2):25,00,00,00\r\n");
  CHECK(valueIn(joint, "a").data == "%\0"s);
  CHECK(valueIn(joint, "b").data == "%\0"s);

  RegistryTree root = read("REGEDIT4\n[HKEY_CURRENT_USER\\]\n\"a\"=\"\"\n[HKEY_CURRENT_USER\\Software\\T]\n");
  CHECK(root.hive("HKEY_CURRENT_USER")->values.size() == 1);

  RegistryTree below;
  for (const char* text :
       {"REGEDIT4\n[\\]\n\"r\"=\"\"\n[\\T]\n\"a\"=\"\"\n", "REGEDIT4\n[T\\B]\n[-\\T\\Gone]\n"}) {
    readRegistryInto(below, text, "x.reg", "HKEY_CURRENT_USER\\Software");
  }
  CHECK(below.find("HKEY_CURRENT_USER\\Software")->values.size() == 1);
  CHECK(valueIn(below, "a").data == "\0"s);
  CHECK(below.find("HKEY_CURRENT_USER\\Software\\T\\B") != nullptr);
  CHECK_THROWS_AS(readRegistryInto(below, old, "x.reg", "HKEY_USERS\\x"), PcError);
}

TEST_CASE("comments, blank lines and deletions") {
  RegistryTree tree = read(
      "REGEDIT4\n; a comment\n\n[HKEY_CURRENT_USER\\Software\\T]\n\"a\"=\"1\"\n  ; "
      "another\n\"b\"=\"2\"\n\"a\"=-\n"
      "[HKEY_CURRENT_USER\\Software\\Gone\\Below]\n[-HKEY_CURRENT_USER\\software\\gone]\n");
  CHECK(tree.find(Key)->values.size() == 1);
  CHECK(tree.find("HKEY_CURRENT_USER\\Software\\Gone") == nullptr);
  CHECK(tree.find("HKEY_CURRENT_USER\\SOFTWARE") != nullptr);
}

TEST_CASE("a damaged text is refused with its line") {
  struct Row {
    std::string text;
    int line;
  };
  const std::vector<Row> rows = {
      {"", 1},
      {"regedit5\n", 1},
      {"REGEDIT4 and more\n", 1},
      {"REGEDIT4\n\"a\"=\"value below no key\"\n", 2},
      {"REGEDIT4\n[HKEY_CURRENT_USER\\Sof", 2},
      {"REGEDIT4\n[HKEY_NONE\\Software]\n", 2},
      {"REGEDIT4\n[]\n", 2},
      {"REGEDIT4\n[-HKEY_USERS]\n", 2},
      {"REGEDIT4\n[HKEY_USERS\\a\\\\b]\n", 2},
      {"REGEDIT4\n[HKEY_USERS\\" + std::string(256, 'k') + "]\n", 2},
      {oldForm("\"a\"=\"cut"), 4},
      {oldForm("\"a\"=\"two\nlines\n"), 4},
      {oldForm("\"a"), 4},
      {oldForm("\"a\""), 4},
      {oldForm("\"a\"="), 4},
      {oldForm("\"a\"=dword:0001"), 4},
      {oldForm("\"a\"=dword:\n"), 4},
      {oldForm("\"a\"=dword:000000001\n"), 4},
      {oldForm("\"a\"=hex:01,0"), 4},
      {oldForm("\"a\"=hex:01"), 4},
      {oldForm("\"a\"=hex:01,\n"), 4},
      {oldForm("\"a\"=hex:01,\\\n"), 5},
      {oldForm("\"a\"=hex(zz):01\n"), 4},
      {oldForm("\"a\"=hex(100000000):01\n"), 4},
      {oldForm("\"a\"=\"x\" y\n"), 4},
      {oldForm("\"a\"=\"C:\\WINDOWS\"\n"), 4},
      {oldForm("a=\"x\"\n"), 4},
      {"REGEDIT4\n[\\Software]\n", 2},
      {"REGEDIT4\n[HKEY_USERS]\nREGEDIT4\n\"a\"=\"below no key\"\n", 4},
      {utf16("REGEDIT4\n") + "x", 0},
      {"\xFE\xFF\0R"s, 0},
      {"regf\1\0"s, 0},
      {"CREG\0"s, 0},
      {"WINE REGISTRY Version 2\n", 0},
      {utf16("REGEDIT4\n[HKEY_NONE]\n"), 2},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    try {
      read(row.text);
      FAIL("was read");
    } catch (const PcError& error) {
      CHECK(error.file() == "registry.reg");
      CHECK(error.line() == row.line);
      CHECK_FALSE(error.reason().empty());
    }
  }
}

TEST_CASE("a key that is nested too deep is refused") {
  std::string path = "HKEY_USERS";
  for (int i = 0; i < 100000; ++i) path += "\\k";
  CHECK_THROWS_AS(read("REGEDIT4\n[" + path + "]\n"), PcError);
}

TEST_CASE("what is written is sorted, stable and reads back to the same bytes") {
  RegistryTree tree;
  RegistryNode& key = *tree.make(Key);
  tree.make("HKEY_CURRENT_USER\\Software\\A");
  key.values["text"] = {1, "C:\\x \"q\"\0"s};
  key.values[""] = {1, "\0"s};
  key.values["no NUL"] = {1, "1"};
  key.values["two NULs"] = {1, "1\0\0"s};
  key.values["NUL inside"] = {1, "a\0b\0"s};
  key.values["lines"] = {1, "a\r\nb\0"s};
  key.values["name\r\nof lines"] = {1, "x\0"s};
  key.values["number"] = {4, "\x01\x02\x03\x04"};
  key.values["short number"] = {4, "\x01"};
  key.values["expand"] = {2, "%x%\0"s};
  key.values["long"] = {3, std::string(100, '\x5A')};
  key.values["odd type"] = {0xFFFF0010, "x"};
  const std::string text = writeRegistryText(tree);

  RegistryTree again = read(text);
  CHECK(writeRegistryText(again) == text);
  for (const auto& [name, value] : key.values) CHECK(valueIn(again, name) == value);
  CHECK(text.find(
            "\r\n[HKEY_CURRENT_USER\\Software\\A]\r\n\r\n[HKEY_CURRENT_USER\\Software\\T]\r\n@=\"\"\r\n") !=
        std::string::npos);
  CHECK(text.find("\"text\"=\"C:\\\\x \\\"q\\\"\"\r\n") != std::string::npos);
  CHECK(text.find("\"no NUL\"=hex(1):31\r\n") != std::string::npos);
  CHECK(text.find("\"number\"=dword:04030201\r\n") != std::string::npos);
  CHECK(text.find("5a,\\\r\n  5a,") != std::string::npos);  // long data goes on in further lines
}

TEST_CASE("what changed is told in the form of the export, and makes the one registry into the other") {
  const auto build = [](RegistryTree& tree, bool after) {
    const auto make = [&](const char* below) { return tree.make(std::string(Key) + below); };
    make("\\Same\\Below")->values["a"] = {1, "x\0"s};
    make("")->values["changed"] = {1, after ? "n\xE4\"w \\\0"s : "old\0"s};
    make("")->values["expand"] = {2, after ? "<0101>%\0"s : "\0"s};
    make("")->values["stays"] = {4, "\1\0\0\0"s};
    if (!after) {
      make("")->values["gone"] = {1, "x\0"s};
      make("")->values[""] = {1, "x\0"s};
      make("\\Went\\Below")->values["a"] = {1, "x\0"s};
    } else {
      make("\\New\\Empty");
      make("\\New")->values["list"] = {7, "a\0b\0\0"s};
      make("\\Left out")->values["a"] = {1, "x\0"s};
    }
  };
  RegistryTree after;
  build(after, true);
  const LeftOut leftOut = [](std::string_view path, std::string_view, bool) {
    return path.ends_with("Left out");
  };
  const std::string heading = "Windows Registry Editor Version 5.00\r\n";
  for (const std::string& start : {"REGEDIT4\r\n"s, heading, "\xEF\xBB\xBF" + heading, utf16(heading)}) {
    CAPTURE(start);
    const RegistryForm form = formOf(start);
    RegistryTree before;
    build(before, false);
    const std::string text = changesText(before, after, form, leftOut);
    CHECK(text.starts_with(start));
    readRegistryInto(before, text, "changes.reg", {});
    after.find(Key)->keys.erase("Left out");
    CHECK(writeRegistryText(before) == writeRegistryText(after));
    build(after, true);
    // An export of that form is read back alike.
    RegistryTree again = read(writeRegistryText(after, form));
    CHECK(writeRegistryText(again) == writeRegistryText(after));
  }
  RegistryTree before;
  build(before, false);
  CHECK(changesText(before, after, {}, leftOut) ==
        "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\T]\r\n@=-\r\n\"gone\"=-\r\n\"changed\"=\"n\xE4\\\"w "
        "\\\\\"\r\n"
        "\"expand\"=hex(2):3c,30,31,30,31,3e,25,00\r\n\r\n[-HKEY_CURRENT_USER\\Software\\T\\Went]\r\n\r\n"
        "[HKEY_CURRENT_USER\\Software\\T\\New]\r\n\"list\"=hex(7):61,00,62,00,00\r\n\r\n"
        "[HKEY_CURRENT_USER\\Software\\T\\New\\Empty]\r\n\r\n");
  CHECK(changesText(after, after, {}, leftOut) == "REGEDIT4\r\n\r\n");
}

TEST_CASE("every cut of a text is refused or reads as its whole lines") {
  const std::string text =
      oldForm("\"a\"=\"x\"\r\n\"b\"=dword:00000001\r\n\"c\"=hex:01,02\r\n@=hex(2):25,\\\r\n  00\r\n");
  RegistryTree whole = read(text);
  for (std::size_t length = 0; length < text.size(); ++length) {
    CAPTURE(length);
    try {
      RegistryTree cut = read(text.substr(0, length));
      const RegistryNode* key = cut.find(Key);
      if (key == nullptr) continue;
      for (const auto& [name, value] : key->values) CHECK(value == valueIn(whole, name));
    } catch (const PcError&) {
    }
  }
}
