#include "platform/folder/RegistryWriter.h"

#include <algorithm>

#include "base/Text.h"

namespace zub {
namespace {

constexpr std::size_t LineWidth = 78;
constexpr std::string_view OwnComment = " Saved by Zubrane, in the code page of the PC";

void appendHex(std::string& out, std::uint32_t number, int digits) {
  for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) out += "0123456789abcdef"[number >> shift & 0xF];
}

std::uint32_t numberOf(std::string_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[i]);
  return number;
}

std::string utf16Bytes(const std::u16string& text) {
  std::string bytes;
  bytes.reserve(text.size() * 2);
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

// At least the length that a key adds to the program's own text.
std::uint64_t mostLength(const RegistryNode& node, std::uint64_t pathLength) {
  std::uint64_t length = pathLength + 8;
  for (const auto& [name, value] : node.values) {
    length += 2 * name.size() + 4 * value.data.size() + LineWidth;
  }
  for (const auto& [name, key] : node.keys) length += mostLength(*key, pathLength + 1 + name.size());
  return length;
}

}  // namespace

RegistryWriter::RegistryWriter(RegistryForm form, std::string_view comment) : form_(form) {
  add(form.isNew ? "Windows Registry Editor Version 5.00\r\n" : "REGEDIT4\r\n");
  if (!comment.empty()) add(joined({";", comment, CrLf}));
}

void RegistryWriter::add(std::string_view ansi) {
  if (form_.letters == RegistryForm::Letters::CodePage) {
    out_ += ansi;
  } else {
    out_ += utf8FromAnsi(ansi);
  }
}

void RegistryWriter::addQuoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  add(quoted + '"');
}

void RegistryWriter::addName(std::string_view name) {
  if (name.empty()) {
    out_ += '@';
  } else {
    addQuoted(name);
  }
  out_ += '=';
}

void RegistryWriter::addBytes(std::string_view data, std::size_t lineStart) {
  for (std::size_t i = 0; i < data.size(); ++i) {
    if (out_.size() - lineStart + 3 > LineWidth) {
      out_ += "\\\r\n";
      lineStart = out_.size();
      out_ += "  ";
    }
    appendHex(out_, static_cast<unsigned char>(data[i]), 2);
    if (i + 1 < data.size()) out_ += ',';
  }
}

// A text and the NUL behind it, with nothing in it that a line cannot hold. Some tools take letters beyond ASCII for
// others in the newer form: there those stand as bytes.
bool RegistryWriter::canBeQuoted(const RegistryValue& value) const {
  return value.type == static_cast<std::uint32_t>(ValueType::Text) && value.data.ends_with('\0') &&
         std::all_of(value.data.begin(), value.data.end() - 1, [this](char c) {
           const auto byte = static_cast<unsigned char>(c);
           return byte >= 32 && (byte < 127 || !form_.isNew) && !(form_.isNew && c == '<');
         });
}

// The newer form keeps texts in 16-bit characters.
std::string RegistryWriter::stored(const RegistryValue& value) const {
  return form_.isNew && isText(value.type) ? utf16Bytes(utf16FromAnsi(value.data)) : value.data;
}

void RegistryWriter::key(std::string_view path) {
  add(joined({CrLf, "[", path, "]", CrLf}));
}

void RegistryWriter::deletedKey(std::string_view path) {
  add(joined({CrLf, "[-", path, "]", CrLf}));
}

void RegistryWriter::deletedValue(std::string_view name) {
  addName(name);
  out_ += "-\r\n";
}

void RegistryWriter::value(std::string_view name, const RegistryValue& value) {
  const std::size_t lineStart = out_.size();
  addName(name);
  if (canBeQuoted(value)) {
    addQuoted(std::string_view(value.data).substr(0, value.data.size() - 1));
  } else if (value.type == static_cast<std::uint32_t>(ValueType::Number) && value.data.size() == 4) {
    out_ += "dword:";
    appendHex(out_, numberOf(value.data), 8);
  } else {
    out_ += "hex";
    if (value.type != static_cast<std::uint32_t>(ValueType::Binary)) {
      int digits = 1;
      while (digits < 8 && value.type >> (digits * 4) != 0) ++digits;
      out_ += '(';
      appendHex(out_, value.type, digits);
      out_ += ')';
    }
    out_ += ':';
    addBytes(stored(value), lineStart);
  }
  out_ += CrLf;
}

void RegistryWriter::tree(const RegistryNode& node, const std::string& path) {
  key(path);
  for (const auto& [name, data] : node.values) value(name, data);
  for (const auto& [name, below] : node.keys) tree(*below, path + "\\" + name);
}

std::string RegistryWriter::text() {
  out_ += CrLf;
  switch (form_.letters) {
    case RegistryForm::Letters::Utf16:
      return "\xFF\xFE" + utf16Bytes(utf16FromUtf8(out_));
    case RegistryForm::Letters::Utf8:
      return (form_.marked ? "\xEF\xBB\xBF" : "") + std::move(out_);
    case RegistryForm::Letters::CodePage:
      break;
  }
  return std::move(out_);
}

std::string writeRegistryText(RegistryTree& tree) {
  RegistryWriter writer({}, OwnComment);
  for (std::size_t i = 0; i < HiveNames.size(); ++i) writer.tree(tree.hive(i), tree.hive(i).name);
  return writer.text();
}

bool isOwnRegistryText(std::string_view bytes) {
  return bytes.starts_with(joined({"REGEDIT4\r\n;", OwnComment, CrLf}));
}

std::string writeRegistryText(RegistryTree& tree, RegistryForm form) {
  RegistryWriter writer(form);
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    const RegistryNode& hive = tree.hive(i);
    if (!hive.keys.empty() || !hive.values.empty()) writer.tree(hive, hive.name);
  }
  return writer.text();
}

bool canBeWritten(RegistryTree& tree, std::uint64_t mostBytes) {
  std::uint64_t length = LineWidth * 2;
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    length += mostLength(tree.hive(i), tree.hive(i).name.size());
  }
  return length <= mostBytes || writeRegistryText(tree).size() <= mostBytes;
}

}  // namespace zub
