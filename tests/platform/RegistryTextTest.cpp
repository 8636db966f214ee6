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

// The lines below HKEY_CURRENT_USER\Software of what is written, with line ends of one byte.
std::string written(RegistryTree& tree) {
  const std::string text = writeRegistryText(tree);
  const auto begin = text.find("[HKEY_CURRENT_USER\\Software]"), end = text.find("[HKEY_DYN_DATA]");
  REQUIRE(end != std::string::npos);
  std::string lines = text.substr(begin, end - begin);
  std::erase(lines, '\r');
  return lines;
}

std::string rewritten(std::string_view text) {
  RegistryTree tree = read(text);
  return written(tree);
}

}  // namespace

TEST_CASE("every form of data is read; what is written is sorted, and reads back alike") {
  RegistryTree tree = read(R"(REGEDIT4
; a comment

[HKEY_CURRENT_USER\Software\T]
"text"="C:\\W \"x\""
@="default"
"EMPTY"="replaced"
"empty"=""
"two
lines"="a
b"
"with \\ and = ]"=""
"number" = dword:0000abCD ; a comment
"short number"=dword:2a
"binary"=hex:01,fF
  ; another
"no bytes"=hex:
"expand"=hex(2):25,41,\
  42,00
"none"=hex(0):
"odd"=hex(8000000f):01
"no NUL"=hex(1):31
"two NULs"=hex(1):31,00,00
"half a number"=hex(4):01
"long"=hex:5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a
"gone"="1"
"gone"=-
[HKEY_CURRENT_USER\Software\A]
[HKEY_CURRENT_USER\Software\Gone\Below]
[-HKEY_CURRENT_USER\software\gone]
)");
  const std::string expected = R"([HKEY_CURRENT_USER\Software]

[HKEY_CURRENT_USER\Software\A]

[HKEY_CURRENT_USER\Software\T]
@="default"
"binary"=hex:01,ff
"EMPTY"=""
"expand"=hex(2):25,41,42,00
"half a number"=hex(4):01
"long"=hex:5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,\
  5a,5a,5a
"no bytes"=hex:
"no NUL"=hex(1):31
"none"=hex(0):
"number"=dword:0000abcd
"odd"=hex(8000000f):01
"short number"=dword:0000002a
"text"="C:\\W \"x\""
"two
lines"=hex(1):61,0a,62,00
"two NULs"=hex(1):31,00,00
"with \\ and = ]"=""

)";
  CHECK(written(tree) == expected);
  CHECK(valueIn(tree, "TEXT") == RegistryValue{ValueType::Text, "C:\\W \"x\"\0"s});
  CHECK(valueIn(tree, "number") == RegistryValue{ValueType::Number, "\xCD\xAB\0\0"s});
  CHECK(rewritten(writeRegistryText(tree)) == expected);
}

TEST_CASE("the newer form and the encodings give the same 8-bit content") {
  const std::string text =
      "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\T]\r\n"
      "\"a\"=hex(2):25,00,41,00,00,00\r\n\"b\"=\"x\"\r\n\"c\"=hex:41,00\r\n\"d\"=hex(7):e4,00,00,00,00,"
      "00\r\n";
  for (const std::string& form : {text, utf16(text), "\xEF\xBB\xBF" + text}) {
    CHECK(rewritten(form) ==
          "[HKEY_CURRENT_USER\\Software]\n\n[HKEY_CURRENT_USER\\Software\\T]\n\"a\"=hex(2):25,41,00\n"
          "\"b\"=\"x\"\n\"c\"=hex:41,00\n\"d\"=hex(7):e4,00,00\n\n");
  }
  // What the code page lacks has its stand-in, so that nothing is lost.
  CHECK(rewritten("\xEF\xBB\xBF" + oldForm("\"\xC3\xA4\"=\"\xE2\x82\xAC\"\n\"\xE6\x97\xA5\"=\"\"\n")) ==
        "[HKEY_CURRENT_USER\\Software]\n\n[HKEY_CURRENT_USER\\Software\\T]\n\"<65E5>\"=\"\"\n\"\xE4\"="
        "\"\x80\"\n\n");
}

TEST_CASE(
    "UTF-8 needs no mark where the text can be nothing else, and the program's own texts are never it") {
  const std::string heading = "Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\Software\\T]\n";
  RegistryTree utf8 = read(heading + "\"a\"=\"\xC3\xA4\"\n");
  CHECK(valueIn(utf8, "a").data == "\xE4\0"s);
  RegistryTree beyond = read(heading + "\"a\"=\"\xE2\x82\xAC\xF0\x9F\x98\x80\"\n");
  CHECK(valueIn(beyond, "a").data == "\x80<D83DDE00>\0"s);
  RegistryTree codePage = read(heading + "\"a\"=\"\xC3\xA4\xE4\"\n");
  CHECK(valueIn(codePage, "a").data == "\xC3\xA4\xE4\0"s);
  RegistryTree tree;
  tree.make(Key)->values["a"] = {ValueType::Text, "\xC3\xA4\0"s};
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

TEST_CASE("a damaged text is refused with its line") {
  const auto refused = [](const std::string& text, int line) {
    CAPTURE(text);
    try {
      read(text);
      FAIL("was read");
    } catch (const PcError& error) {
      CHECK(error.file() == "registry.reg");
      CHECK(error.line() == line);
      CHECK_FALSE(error.reason().empty());
    }
  };
  for (const char* lines :
       {"\"a\"=\"cut", "\"a\"=\"two\nlines\n", "\"a", "\"a\"", "\"a\"=", "\"a\"=dword:0001", "\"a\"=dword:\n",
        "\"a\"=dword:000000001\n", "\"a\"=hex:01,0", "\"a\"=hex:01", "\"a\"=hex:01,\n", "\"a\"=hex(zz):01\n",
        "\"a\"=hex(100000000):01\n", "\"a\"=\"x\" y\n", "\"a\"=\"C:\\WINDOWS\"\n", "a=\"x\"\n"})
    refused(oldForm(lines), 4);
  refused(oldForm("\"a\"=hex:01,\\\n"), 5);
  for (const std::string& lines :
       {"\"a\"=\"value below no key\"\n"s, "[HKEY_CURRENT_USER\\Sof"s, "[HKEY_NONE\\Software]\n"s, "[]\n"s,
        "[-HKEY_USERS]\n"s, "[HKEY_USERS\\a\\\\b]\n"s, "[HKEY_USERS\\" + std::string(256, 'k') + "]\n",
        "[\\Software]\n"s})
    refused("REGEDIT4\n" + lines, 2);
  refused("REGEDIT4\n[HKEY_USERS]\nREGEDIT4\n\"a\"=\"below no key\"\n", 4);
  for (const char* text : {"", "regedit5\n", "REGEDIT4 and more\n"}) refused(text, 1);
  refused(utf16("REGEDIT4\n[HKEY_NONE]\n"), 2);
  // No text at all.
  for (const std::string& bytes :
       {utf16("REGEDIT4\n") + "x", "\xFE\xFF\0R"s, "regf\1\0"s, "CREG\0"s, "WINE REGISTRY Version 2\n"s})
    refused(bytes, 0);
}

TEST_CASE("a key that is nested too deep is refused") {
  std::string path = "HKEY_USERS";
  for (int i = 0; i < 100000; ++i) path += "\\k";
  CHECK_THROWS_AS(read("REGEDIT4\n[" + path + "]\n"), PcError);
}

TEST_CASE("what changed is told in the form of the export, and makes the one registry into the other") {
  const std::string same =
      "\"stays\"=dword:1\n\n[HKEY_CURRENT_USER\\Software\\T\\Same\\Below]\n\"a\"=\"x\"\n";
  const std::string old = oldForm("@=\"x\"\n\"gone\"=\"x\"\n\"changed\"=\"old\"\n\"expand\"=hex(2):00\n" +
                                  same + "[HKEY_CURRENT_USER\\Software\\T\\Went\\Below]\n\"a\"=\"x\"\n");
  RegistryTree after =
      read(oldForm("\"changed\"=\"n\xE4\\\"w \\\\\"\n\"expand\"=hex(2):3c,30,31,30,31,3e,25,00\n" + same +
                   "[HKEY_CURRENT_USER\\Software\\T\\New]\n\"list\"=hex(7):61,00,62,00,00\n"
                   "[HKEY_CURRENT_USER\\Software\\T\\New\\Empty]\n"));
  const std::string whole = writeRegistryText(after);
  after.make(std::string(Key) + "\\Left out")->values["a"] = {ValueType::Text, "x\0"s};
  const LeftOut leftOut = [](std::string_view path, std::string_view, bool) {
    return path.ends_with("Left out");
  };
  const std::string heading = "Windows Registry Editor Version 5.00\r\n";
  for (const std::string& start : {"REGEDIT4\r\n"s, heading, "\xEF\xBB\xBF" + heading, utf16(heading)}) {
    CAPTURE(start);
    const RegistryForm form = formOf(start);
    RegistryTree before = read(old);
    const std::string text = changesText(before, after, form, leftOut);
    CHECK(text.starts_with(start));
    readRegistryInto(before, text, "changes.reg", {});
    CHECK(writeRegistryText(before) == whole);
    // An export of that form is read back alike.
    RegistryTree again = read(writeRegistryText(after, form));
    CHECK(writeRegistryText(again) == writeRegistryText(after));
  }
  RegistryTree before = read(old);
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
