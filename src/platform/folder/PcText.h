// The form of a PC's own texts, pc.txt and tasks.txt: UTF-8, a "name = value" a line, lines end in LF or CR LF. "#" begins
// a comment.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zub {

// What may stand around names and values, and in empty lines.
inline constexpr std::string_view PcBlanks = " \t\r\n";

struct PcLine {
  std::string_view name;
  std::string_view value;  // behind the sign and one blank
  int number;              // counts from 1
};

// Why a line cannot be: thrown by whoever takes it, and told with the line.
struct Refused {
  std::string reason;
};

// Hands on all lines that are neither empty nor a comment. PcError where one has no sign or is refused.
void eachPcLine(std::string_view text, const std::string& file,
                const std::function<void(const PcLine&)>& take);

}  // namespace zub
