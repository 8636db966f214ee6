#include <algorithm>

#include "platform/folder/RegistryText.h"

namespace zub {
namespace {

constexpr std::size_t LineWidth = 78;

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (const char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  out += '"';
}

void appendHex(std::string& out, std::uint32_t number, int digits) {
  for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) out += "0123456789abcdef"[number >> shift & 0xF];
}

void appendBytes(std::string& out, std::string_view data, std::size_t lineStart) {
  for (std::size_t i = 0; i < data.size(); ++i) {
    if (out.size() - lineStart + 3 > LineWidth) {
      out += "\\\r\n";
      lineStart = out.size();
      out += "  ";
    }
    appendHex(out, static_cast<unsigned char>(data[i]), 2);
    if (i + 1 < data.size()) out += ',';
  }
}

// A text and the NUL behind it, with nothing in it that a line cannot hold.
bool isPlainText(const RegistryValue& value) {
  return value.type == ValueType::Text && value.data.ends_with('\0') &&
         std::none_of(value.data.begin(), value.data.end() - 1,
                      [](char c) { return static_cast<unsigned char>(c) < 32; });
}

std::uint32_t numberOf(std::string_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes[i]);
  return number;
}

void appendValue(std::string& out, const std::string& name, const RegistryValue& value) {
  const std::size_t lineStart = out.size();
  if (name.empty()) {
    out += '@';
  } else {
    appendQuoted(out, name);
  }
  out += '=';
  if (isPlainText(value)) {
    appendQuoted(out, std::string_view(value.data).substr(0, value.data.size() - 1));
  } else if (value.type == ValueType::Number && value.data.size() == 4) {
    out += "dword:";
    appendHex(out, numberOf(value.data), 8);
  } else {
    out += "hex";
    if (value.type != ValueType::Binary) {
      const auto type = static_cast<std::uint32_t>(value.type);
      int digits = 1;
      while (digits < 8 && type >> (digits * 4) != 0) ++digits;
      out += '(';
      appendHex(out, type, digits);
      out += ')';
    }
    out += ':';
    appendBytes(out, value.data, lineStart);
  }
  out += "\r\n";
}

void appendKey(std::string& out, const RegistryNode& node, const std::string& path) {
  out += "\r\n[" + path + "]\r\n";
  for (const auto& [name, value] : node.values) appendValue(out, name, value);
  for (const auto& [name, key] : node.keys) appendKey(out, *key, path + "\\" + name);
}

// At least the length that appendKey adds.
std::uint64_t mostLength(const RegistryNode& node, std::uint64_t pathLength) {
  std::uint64_t length = pathLength + 8;
  for (const auto& [name, value] : node.values) {
    length += 2 * name.size() + 4 * value.data.size() + LineWidth;
  }
  for (const auto& [name, key] : node.keys) length += mostLength(*key, pathLength + 1 + name.size());
  return length;
}

}  // namespace

std::string writeRegistryText(RegistryTree& tree) {
  std::string out = "REGEDIT4\r\n";
  for (std::size_t i = 0; i < HiveNames.size(); ++i) appendKey(out, tree.hive(i), tree.hive(i).name);
  out += "\r\n";
  return out;
}

bool canBeWritten(RegistryTree& tree, std::uint64_t mostBytes) {
  std::uint64_t length = LineWidth;
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    length += mostLength(tree.hive(i), tree.hive(i).name.size());
  }
  return length <= mostBytes || writeRegistryText(tree).size() <= mostBytes;
}

}  // namespace zub
