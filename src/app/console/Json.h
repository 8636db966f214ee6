// What --json makes of a command's output: one JSON document on one line. docs/output.schema.json tells its members.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "app/console/Commands.h"

namespace zub {

// The text in quotes. Control characters are escaped, and what is no Unicode character is U+FFFD.
std::string jsonText(std::string_view utf8);

class Json {
 public:
  Json(const CommandContext& context, std::string_view command);

  // Members, in the order of the calls; within an array the name is empty. A text is the PC's.
  void text(std::string_view name, std::string_view value);
  void utf8(std::string_view name, std::string_view value);
  void number(std::string_view name, std::int64_t value);
  void flag(std::string_view name, bool value);
  void array(std::string_view name, const std::function<void()>& elements);
  void object(const std::function<void()>& members);

  // Writes the whole document to the standard output. Without it nothing of it is seen.
  void write();

 private:
  void begin(std::string_view name);

  const CommandContext& context_;
  std::string text_ = "{";
  bool first_ = true;  // of the members or elements around
};

}  // namespace zub
