// The PC's ANSI code page, as far as the logic needs it.
#pragma once

#include <string>
#include <string_view>

namespace zub {

class CodePage {
 public:
  virtual ~CodePage() = default;
  // Upper case, byte for byte: the result is as long as the text.
  virtual std::string upper(std::string_view text) const = 0;
  // A path from outside (the registry, a text) as told text (platform/ToldName.h): no byte in it is a backslash
  // that is none.
  virtual std::string toldPath(std::string_view path) const { return std::string(path); }
};

}  // namespace zub
