#include "cleaners/NetscapeCookies.h"

#include "base/Text.h"

namespace zub {
namespace {

constexpr char Tab = '\t';

// The characters up to and including the first tab; 0 where there is none.
std::size_t throughTab(std::string_view text, std::size_t from = 0) {
  return text.find(Tab, from) + 1;
}

}  // namespace

bool isNetscapeCookie(std::string_view line) {
  return !trimLeft(line).starts_with('#') && contains(line, "\t");
}

std::string_view netscapeDomain(std::string_view line) {
  return line.substr(0, throughTab(line));
}

NetscapeCookie nameAndValue(std::string_view line) {
  constexpr std::size_t beforeExpiry = 23;  // counted from the tab behind the domain, that tab being 0
  const std::string_view fields = line.substr(line.find(Tab));
  const std::string_view rest = fields.substr(throughTab(fields, beforeExpiry));
  const std::size_t nameLength = throughTab(rest);
  return {rest.substr(0, nameLength), rest.substr(nameLength)};
}

bool readKeepField(FileReader& file, std::string& field) {
  field.clear();
  int c = file.get();
  if (c == -1) return false;
  for (; c != -1 && c != ',' && c != '\r' && c != '\n'; c = file.get()) field += static_cast<char>(c);
  return true;
}

}  // namespace zub
