// Writes the text form of a registry, entry by entry.
#pragma once

#include <string>
#include <string_view>

#include "platform/folder/RegistryText.h"

namespace zub {

class RegistryWriter {
 public:
  // Begins with the heading of the form. `comment` is a line without its ";", or empty.
  explicit RegistryWriter(RegistryForm form, std::string_view comment = {});

  // Names, paths and data as a tree holds them. Values belong to the key written last.
  void key(std::string_view path);
  void deletedKey(std::string_view path);
  void value(std::string_view name, const RegistryValue& value);
  void deletedValue(std::string_view name);
  void tree(const RegistryNode& node, const std::string& path);  // the key with all below

  std::string text();  // the whole, in the letters of the form

 private:
  void add(std::string_view ansi);
  void addQuoted(std::string_view text);
  void addName(std::string_view name);
  void addBytes(std::string_view data, std::size_t lineStart);
  bool canBeQuoted(const RegistryValue& value) const;
  std::string stored(const RegistryValue& value) const;

  RegistryForm form_;
  std::string out_;  // UTF-8, or in the code page
};

}  // namespace zub
