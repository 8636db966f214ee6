#include <array>

#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"

namespace zub {
namespace {

constexpr std::string_view OldForm = "REGEDIT4";
constexpr std::string_view NewForm = "Windows Registry Editor Version 5.00";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16Mark = "\xFF\xFE";

// What is no export, and what makes one of it.
struct OtherForm {
  std::string_view start;
  const char* reason;
};
constexpr std::array<OtherForm, 4> OtherForms{{
    {"\xFE\xFF",
     "is UTF-16 with the other byte order: \"iconv -f UTF-16 -t UTF-8\" makes an export that can be read"},
    {"regf",
     "is a raw hive: \"hivexregedit --export --prefix HKEY_CURRENT_USER HIVE '\\'\" (the prefix of what it "
     "is) makes an export of it"},
    {"CREG",
     "is the raw registry of Windows 95 to ME: \"regedit /L:SYSTEM.DAT /R:USER.DAT /E EXPORT.REG\" under DOS "
     "makes an export of it"},
    {"WINE REGISTRY", "is a registry file of Wine: \"wine regedit /E EXPORT.REG\" makes an export of it"},
}};

// Any 16-bit text, also one with halves of pairs astray. A last odd byte does not count.
std::string utf8FromUtf16(std::string_view bytes) {
  const auto unit = [&](std::size_t i) -> std::uint32_t {
    return static_cast<unsigned char>(bytes[i]) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + 1])) << 8;
  };
  std::string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    std::uint32_t character = unit(i);
    if (character >= 0xD800 && character < 0xDC00 && i + 3 < bytes.size()) {
      const std::uint32_t low = unit(i + 2);
      if (low >= 0xDC00 && low < 0xE000) {
        character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
        i += 2;
      }
    }
    appendUtf8(text, character);
  }
  return text;
}

// Bytes of a code page hardly ever look like that.
bool isUtf8BeyondAscii(std::string_view text) {
  bool beyond = false;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    if (lead < 0x80) continue;
    std::size_t more = 0;
    if (lead >= 0xC2) more = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
    if (more == 0 || text.size() - i < more) return false;
    for (; more > 0; --more, ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return false;
    }
    beyond = true;
  }
  return beyond;
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

class Reader {
 public:
  Reader(RegistryTree& tree, std::string_view text, bool isUtf8, const std::string& file,
         std::string_view below)
      : tree_(tree), text_(text), isUtf8_(isUtf8), file_(file), below_(below) {}

  void read() {
    if (!takeHeading()) refuse("is no registry text: it does not begin with REGEDIT4");
    endLine();
    while (skipBlankLines()) {
      if (peek() == '[') {
        readKey();
      } else if (peek() == '"' || peek() == '@' || !takeHeading()) {
        readValue();
      }
      endLine();
    }
  }

 private:
  [[noreturn]] void refuse(const std::string& reason) const { throw PcError(file_, line_, reason); }

  bool atEnd() const { return place_ == text_.size(); }
  // NUL at the end of the text.
  char peek() const { return atEnd() ? '\0' : text_[place_]; }
  bool atLineEnd() const { return atEnd() || text_[place_] == '\n' || text_.substr(place_, 2) == "\r\n"; }
  void skipBlanks() {
    while (peek() == ' ' || peek() == '\t') ++place_;
  }
  void skipLineEnd() {
    if (peek() == '\r') ++place_;
    if (peek() == '\n') ++place_;
    ++line_;
  }
  bool take(std::string_view token) {
    if (!equalFolded(text_.substr(place_, token.size()), token)) return false;
    place_ += token.size();
    return true;
  }
  std::string_view restOfLine() {
    const auto end = std::min(text_.find('\n', place_), text_.size());
    std::string_view rest = text_.substr(place_, end - place_);
    place_ = end;
    return rest.substr(0, rest.find_last_not_of(" \t\r") + 1);
  }
  // A comment may stand behind what a line holds.
  void endLine() {
    skipBlanks();
    if (peek() == ';' && !atEnd()) restOfLine();
    if (!atLineEnd()) refuse("something stands behind the end of the entry");
    if (!atEnd()) skipLineEnd();
  }
  // False at the end of the text.
  bool skipBlankLines() {
    while (true) {
      skipBlanks();
      if (peek() == ';') restOfLine();
      if (atEnd()) return false;
      if (!atLineEnd()) return true;
      skipLineEnd();
    }
  }

  std::string ansi(std::string_view text) const { return isUtf8_ ? ansiFromUtf8(text) : std::string(text); }

  // One stands also where a text that was joined to another one begins.
  bool takeHeading() {
    const std::size_t place = place_;
    if (isUtf8_ && text_.substr(place_).starts_with(Utf8Mark)) place_ += Utf8Mark.size();
    const std::string_view heading = restOfLine();
    if (heading != NewForm && heading != OldForm) {
      place_ = place;
      return false;
    }
    isNewForm_ = heading == NewForm;
    key_ = nullptr;
    return true;
  }

  bool namesHive(std::string_view path) { return tree_.hive(path.substr(0, path.find('\\'))) != nullptr; }

  void readKey() {
    const std::string_view line = restOfLine();
    if (line.size() < 2 || !line.ends_with(']')) refuse("the name of a key is cut off");
    const bool deleted = line[1] == '-';
    std::string path = ansi(line.substr(deleted ? 2 : 1, line.size() - (deleted ? 3 : 2)));
    if (path.ends_with('\\')) path.pop_back();  // as some tools end the root of a hive
    if (!below_.empty()) {
      if (namesHive(path)) refuse("the key names its hive already: leave \"--as\" out");
      if (!path.empty() && !path.starts_with('\\')) path.insert(0, 1, '\\');
      path.insert(0, below_);
    }
    if (!namesHive(path)) {
      refuse(path.empty() || path.starts_with('\\')
                 ? "the key names no hive: \"zub import --as HKEY_CURRENT_USER\", or another hive, takes "
                   "such a text"
                 : "the key is in no known hive");
    }
    if (deleted) {
      deleteKey(path);
    } else {
      key_ = tree_.make(path);
      if (key_ == nullptr || path.ends_with('\\')) refuse("no key can have this name");
    }
  }

  void deleteKey(const std::string& path) {
    key_ = nullptr;
    RegistryNode* node = tree_.find(path);
    if (node == nullptr) return;
    if (node->parent == nullptr) refuse("a hive cannot be deleted");
    node->parent->keys.erase(std::string(node->name));
  }

  void readValue() {
    if (key_ == nullptr) refuse("a value stands below no key");
    std::string name;
    if (peek() == '@') {
      ++place_;
    } else if (peek() == '"') {
      name = readString();
    } else {
      refuse("is neither a key, a value nor a comment");
    }
    skipBlanks();
    if (!take("=")) refuse("no \"=\" stands behind the name of a value");
    skipBlanks();
    if (name.find('\0') != std::string::npos) refuse("no value can have this name");
    if (take("-")) {
      key_->values.erase(name);
    } else {
      RegistryValue value = readData();
      key_->values[name] = std::move(value);
    }
  }

  // May go over several lines.
  std::string readString() {
    const int firstLine = line_;
    const std::size_t start = ++place_;
    std::string plain;
    std::size_t from = start;
    while (true) {
      const auto stop = text_.find_first_of("\"\\\n", place_);
      if (stop == std::string_view::npos) {
        line_ = firstLine;
        refuse("a text is cut off: it has no closing quote");
      }
      place_ = stop + 1;
      if (text_[stop] == '\n') {
        ++line_;
        continue;
      }
      plain += text_.substr(from, stop - from);
      if (text_[stop] == '"') return ansi(plain);
      if (peek() != '\\' && peek() != '"')
        refuse("a backslash stands before neither a backslash nor a quote");
      from = place_++;
    }
  }

  RegistryValue readData() {
    if (peek() == '"') {
      RegistryValue value{ValueType::Text, readString()};
      value.data += '\0';
      return value;
    }
    if (take("dword:")) return {ValueType::Number, readNumber()};
    if (take("hex:")) return {ValueType::Binary, readBytes()};
    if (!take("hex(")) refuse("the data of a value is of no known form");
    std::uint32_t type = 0;
    int digits = 0;
    for (int digit = hexDigit(peek()); digit >= 0; digit = hexDigit(peek())) {
      if (++digits > 8) refuse("the type of a value is too large");
      type = type << 4 | static_cast<std::uint32_t>(digit);
      ++place_;
    }
    if (digits == 0 || !take("):")) refuse("the type of a value is cut off");
    std::string bytes = readBytes();
    // The newer form keeps texts in 16-bit characters.
    return {ValueType{type},
            isNewForm_ && isText(ValueType{type}) ? ansiFromUtf8(utf8FromUtf16(bytes)) : std::move(bytes)};
  }

  std::string readNumber() {
    std::uint32_t number = 0;
    int digits = 0;
    for (int digit = hexDigit(peek()); digit >= 0 && digits < 8; digit = hexDigit(peek())) {
      number = number << 4 | static_cast<std::uint32_t>(digit);
      ++place_;
      ++digits;
    }
    // Fewer than eight stand for a small number; at the end of the text they may be cut off.
    if (digits == 0 || (digits < 8 && atEnd())) refuse("a number is cut off or broken");
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
  }

  // "0a,1b,\" goes on in the next line.
  std::string readBytes() {
    std::string bytes;
    skipBlanks();
    if (atLineEnd() && !atEnd()) return bytes;
    while (true) {
      skipBlanks();
      if (take("\\")) {
        skipBlanks();
        if (atEnd() || !atLineEnd()) refuse("the bytes of a value are cut off");
        skipLineEnd();
        continue;
      }
      const int high = hexDigit(peek());
      const int low = place_ + 1 < text_.size() ? hexDigit(text_[place_ + 1]) : -1;
      if (high < 0 || low < 0) refuse("the bytes of a value are cut off or broken");
      bytes += static_cast<char>(high << 4 | low);
      place_ += 2;
      skipBlanks();
      if (take(",")) continue;
      // Without a line end nobody can tell whether more was to come.
      if (atEnd()) refuse("the bytes of a value are cut off");
      return bytes;
    }
  }

  RegistryTree& tree_;
  std::string_view text_;
  bool isUtf8_;
  const std::string& file_;
  std::string_view below_;
  std::size_t place_ = 0;
  int line_ = 1;
  bool isNewForm_ = false;
  RegistryNode* key_ = nullptr;
};

}  // namespace

RegistryForm formOf(std::string_view bytes) {
  using Letters = RegistryForm::Letters;
  RegistryForm form;
  form.marked = bytes.starts_with(Utf8Mark) || bytes.starts_with(Utf16Mark);
  if (bytes.starts_with(Utf16Mark)) {
    form.letters = Letters::Utf16;
    // "Wi", against "RE".
    form.isNew = bytes.substr(Utf16Mark.size()).starts_with("W");
    return form;
  }
  if (form.marked || (!isOwnRegistryText(bytes) && isUtf8BeyondAscii(bytes))) form.letters = Letters::Utf8;
  form.isNew = bytes.substr(form.marked ? Utf8Mark.size() : 0).starts_with(NewForm);
  return form;
}

void readRegistryInto(RegistryTree& tree, std::string_view bytes, const std::string& file,
                      std::string_view below) {
  for (const OtherForm& other : OtherForms) {
    if (bytes.starts_with(other.start)) throw PcError(file, 0, other.reason);
  }
  const RegistryForm form = formOf(bytes);
  if (form.letters == RegistryForm::Letters::Utf16) {
    if (bytes.size() % 2 != 0) throw PcError(file, 0, "is cut off in the midst of a character");
    const std::string text = utf8FromUtf16(bytes.substr(Utf16Mark.size()));
    return Reader(tree, text, true, file, below).read();
  }
  Reader(tree, bytes.substr(form.marked ? Utf8Mark.size() : 0), form.letters == RegistryForm::Letters::Utf8,
         file, below)
      .read();
}

RegistryTree readRegistryText(std::string_view bytes, const std::string& file) {
  RegistryTree tree;
  readRegistryInto(tree, bytes, file, {});
  return tree;
}

}  // namespace zub
