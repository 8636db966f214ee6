#include "app/console/Json.h"

#include "app/console/Terminal.h"
#include "base/Text.h"
#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

// Of a pair, which stands for one character; a second half alone stands for a byte that is no UTF-8.
bool isFirstHalf(char16_t unit) {
  return (unit & 0xFC00u) == 0xD800;
}

bool isSecondHalf(char16_t unit) {
  return (unit & 0xFC00u) == 0xDC00;
}

std::string escape(char16_t unit) {
  constexpr std::string_view digits = "0123456789abcdef";
  return {'\\', 'u', '0', '0', digits[unit >> 4 & 15u], digits[unit & 15u]};
}

}  // namespace

std::string jsonText(std::string_view utf8) {
  constexpr std::uint32_t Unknown = 0xFFFD;
  const std::u16string units = utf16FromUtf8(utf8);
  std::string text = "\"";
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = units[i];
    if (unit == u'"' || unit == u'\\') {
      text += '\\';
      text += static_cast<char>(unit);
    } else if (unit == u'\t') {
      text += "\\t";  // before each line of a report
    } else if (unit < 32 || (unit >= 127 && unit < 160)) {
      text += escape(unit);
    } else if (isFirstHalf(unit)) {
      appendUtf8(text, ((unit - 0xD7C0u) << 10) | (units[++i] & 0x3FFu));
    } else {
      appendUtf8(text, isSecondHalf(unit) ? Unknown : unit);
    }
  }
  return text + '"';
}

Json::Json(const CommandContext& context, std::string_view command) : context_(context) {
  utf8("command", command);
}

void Json::begin(std::string_view name) {
  if (!first_) text_ += ',';
  first_ = false;
  if (!name.empty()) text_ += jsonText(name) + ':';
}

void Json::text(std::string_view name, std::string_view value) {
  utf8(name, context_.pc.utf8(value));
}

void Json::utf8(std::string_view name, std::string_view value) {
  begin(name);
  text_ += jsonText(value);
}

void Json::number(std::string_view name, std::int64_t value) {
  begin(name);
  text_ += std::to_string(value);
}

void Json::flag(std::string_view name, bool value) {
  begin(name);
  text_ += value ? "true" : "false";
}

void Json::array(std::string_view name, const std::function<void()>& elements) {
  begin(name);
  text_ += '[';
  first_ = true;
  elements();
  text_ += ']';
  first_ = false;
}

void Json::object(const std::function<void()>& members) {
  begin({});
  text_ += '{';
  first_ = true;
  members();
  text_ += '}';
  first_ = false;
}

void Json::write() {
  terminal::write(terminal::Stream::Output, text_ + "}\n");
}

}  // namespace zub
