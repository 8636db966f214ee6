// The text of a registry: what is read of each form, what is written, and what changed.
#include <string>
#include <vector>

#include "base/Text.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryChanges.h"
#include "platform/folder/RegistryText.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

using namespace zub;
using namespace std::string_literals;

namespace {

constexpr const char* Key = "HKEY_CURRENT_USER\\Software\\T";
const std::string Old = "REGEDIT4\r\n\r\n", New = "Windows Registry Editor Version 5.00\r\n\r\n";
const std::string Mark = "\xEF\xBB\xBF";

std::string utf16(std::string_view ascii) {
  std::string text = "\xFF\xFE";
  for (const char c : ascii) text += {c, '\0'};
  return text;
}

// These lines below the one key.
std::string inKey(std::string_view lines) {
  return "[" + std::string(Key) + "]\r\n" + std::string(lines);
}

RegistryTree read(std::string_view text) {
  return readRegistryText(text, "registry.reg");
}

// With line ends of one byte, and bytes beyond ASCII as %e4.
std::string lines(std::string_view text) {
  std::string told;
  while (!text.empty()) told += printable(trimRight(takeLineWithEnd(text), CrLf)) + '\n';
  return told;
}

// What is written of the user's hive.
std::string written(RegistryTree& tree) {
  const std::string text = writeRegistryText(tree);
  const auto begin = text.find("[HKEY_CURRENT_USER]"), end = text.find("[HKEY_DYN_DATA]");
  return lines(std::string_view(text).substr(begin, end - begin));
}

}  // namespace

TEST_CASE("every form of data is read; what is written is sorted, and reads back alike") {
  const std::string bytes =
      "5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,5a,\\ \t\r\n \t5a,5a,5a";
  RegistryTree tree = read(R"(REGEDIT4
; a comment
	 ; another behind blanks

 [HKEY_CURRENT_USER\Software\T]
"text"="C:\\W \"x\""
@="default"
"EMPTY"="replaced"
"empty"=""
"two
lines"="a
b"
"with \\ and = ]"=""
 	"blanks" 	= 	"b" 	; a comment
"number" = dword:0000abCD ; a comment
"short number"=dword:2a
"binary"=hex: 01 , fF
  ; another
"no bytes"=hex:
"expand"=hex(2):25,41,\
  42,00
"none"=hex(0):
"type of two digits"=hex(10):01
"odd"=hex(8000000f):01
"no NUL"=hex(1):31
"two NULs"=hex(1):31,00,00
"half a number"=hex(4):01
"long"=hex:)" + bytes +
                           "\n\"longe\"=hex:" + bytes + "\n\"longer\"=hex:" + bytes + R"(
"gone"="1"
"gone"=-
[HKEY_CURRENT_USER\Software\A]
[HKEY_CURRENT_USER\Software\Gone\Below]
[-HKEY_CURRENT_USER\software\gone]
)");
  const std::string text = written(tree);
  RegistryTree again = read(writeRegistryText(tree));
  CHECK(written(again) == text);
  CHECK(tree.find(Key)->values.find("NUMBER")->data == "\xCD\xAB\0\0"s);
  checkGolden("registry-data.txt", text);
}

TEST_CASE("the forms and encodings of an export give the same 8-bit content") {
  const std::string newer =
      New +
      inKey(
          "\"a\"=hex(2):25,00,41,00,00,00\n\"b\"=\"x\"\n\"c\"=hex:41,00\n\"d\"=hex(7):e4,00,00,00,00,00\n"
          "\"e\"=hex(1):3d,d8,00,de,00,d8,00,dc,ff,db,ff,df,00,00\n");
  RegistryTree own;
  own.make(Key)->values["a"] = {ValueType::Text, "\xC3\xA4\0"s};
  const struct {
    const char* what;
    std::string text;
  } rows[] = {
      {"the newer form", newer},
      {"in UTF-16", utf16(newer)},
      {"in marked UTF-8", Mark + newer},
      {"marked UTF-8, and what the code page lacks",
       Mark + Old + inKey("\"\xC3\xA4\"=\"\xE2\x82\xAC\"\n\"\xE6\x97\xA5\"=\"\"\n")},
      {"UTF-8 without a mark", New + inKey("\"a\"=\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\"\n")},
      {"its shortest and longest characters",
       New + inKey("\"a\"=\"\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"\n")},
      {"what is too long, half a pair and beyond the last one, byte by byte",
       New + inKey("\"a\"=\"\xE0\x9F\xBF \xED\xA0\x80 \xED\xBF\xBF \xF0\x8F\xBF\xBF \xF4\x90\x80\x80\"\n")},
      {"a lead beyond them", New + inKey("\"a\"=\"\xF5\x80\x80\x80\"\n")},
      {"bytes that are no UTF-8 are the code page's", New + inKey("\"a\"=\"\xC3\xA4\xE4\"\n")},
      {"neither is a lead that cannot be", New + inKey("\"a\"=\"\xC1\xA4\"\n")},
      {"nor one cut off at the end", New + inKey("\"a\"=\"x\"\n;\xE2\x82")},
      {"the program's own text is always the code page's", writeRegistryText(own)},
      {"texts that are joined",
       Mark + Old + inKey("\"a\"=hex(2):25,00\n") + Mark + New + inKey("\"b\"=hex(2):25,00,00,00\n")},
      {"the root of a hive that ends in a backslash", Old + "[HKEY_CURRENT_USER\\]\n\"a\"=\"\"\n"},
  };
  std::string told;
  for (const auto& row : rows) {
    RegistryTree tree = read(row.text);
    told += "== "s + row.what + '\n' + written(tree);
  }
  RegistryTree below;
  for (const char* text : {"[\\]\n\"r\"=\"\"\n[\\T]\n\"a\"=\"\"\n[\\T\\Gone]\n", "[T\\B]\n[-\\T\\Gone]\n"})
    readRegistryInto(below, Old + text, "x.reg", "HKEY_CURRENT_USER\\Software");
  checkGolden("registry-forms.txt", told + "== keys that name no hive, below a key\n" + written(below));
}

TEST_CASE("what changed is told in the form of the export, and makes the one registry into the other") {
  const std::string same = "\"stays\"=dword:1\n\n[" + std::string(Key) + "\\Same\\Below]\n\"a\"=\"x\"\n";
  const std::string old = Old + inKey("@=\"x\"\n\"gone\"=\"x\"\n\"changed\"=\"old\"\n\"expand\"=hex(2):00\n" +
                                      same + "[" + Key + "\\Went\\Below]\n\"a\"=\"x\"\n");
  RegistryTree after =
      read(Old + inKey("\"changed\"=\"n\xE4\\\"w \\\\\"\n\"expand\"=hex(2):3c,30,31,30,31,3e,25,00\n" + same +
                       "[" + Key + "\\New]\n\"list\"=hex(7):61,00,62,00,00\n\"<\"=\"<0101>\"\n[" + Key +
                       "\\New\\Empty]\n"));
  const std::string whole = writeRegistryText(after);
  after.make(std::string(Key) + "\\Left out")->values["a"] = {ValueType::Text, "x\0"s};
  const LeftOut leftOut = [](std::string_view path, std::string_view, bool) {
    return path.ends_with("Left out");
  };
  const std::string heading = "Windows Registry Editor Version 5.00\r\n";
  std::string told;
  for (const std::string& start : {"REGEDIT4\r\n"s, heading, Mark + heading, utf16(heading)}) {
    CAPTURE(start);
    const RegistryForm form = formOf(start);
    RegistryTree before = read(old);
    const std::string text = changesText(before, after, form, leftOut);
    CHECK(text.starts_with(start));
    if (!start.starts_with('\xFF')) told += lines(text);
    readRegistryInto(before, text, "changes.reg", {});
    CHECK(writeRegistryText(before) == whole);
    // An export of that form is read back alike.
    RegistryTree again = read(writeRegistryText(after, form));
    CHECK(writeRegistryText(again) == writeRegistryText(after));
  }
  CHECK(changesText(after, after, {}, leftOut) == "REGEDIT4\r\n\r\n");
  checkGolden("registry-changes.txt", told);
}

TEST_CASE("every cut of a text is refused or reads as its whole lines") {
  const std::string text =
      Old + inKey("\"a\"=\"x\"\r\n\"b\"=dword:00000001\r\n\"c\"=hex:01,02\r\n@=hex(2):25,\\\r\n  00\r\n");
  RegistryTree whole = read(text);
  for (std::size_t length = 0; length < text.size(); ++length) {
    CAPTURE(length);
    try {
      RegistryTree cut = read(text.substr(0, length));
      const RegistryNode* key = cut.find(Key);
      if (key == nullptr) continue;
      for (const auto& [name, value] : key->values) CHECK(value == *whole.find(Key)->values.find(name));
    } catch (const PcError&) {
    }
  }
}
