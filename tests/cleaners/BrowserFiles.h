// The browsers' files as bytes, for tests.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zub {

// A record of index.dat, 256 bytes: the tag, and the text where a URL and a file name stand.
inline std::string indexRecord(std::string_view tag, std::string_view text) {
  std::string record(256, '\0');
  record.replace(0, tag.size(), tag);
  record.replace(97, text.size(), text);
  return record;
}

inline std::string cookieRecord(std::string_view user, std::string_view site, std::string_view file) {
  std::string text = "Cookie:";
  text.append(user).append("@").append(site).append(3, '\0').append(file).append(5, '\0');
  return indexRecord("URL ", text);
}

inline std::string indexFile(std::initializer_list<std::string> records) {
  std::string bytes(20480, '\0');
  bytes.replace(0, 27, "Client UrlCache MMF Ver 5.2");
  for (const std::string& record : records) bytes += record;
  return bytes;
}

// The browser's registry of profiles: texts between other bytes, each with its NUL.
inline std::string profileRegistry(std::initializer_list<std::string_view> texts) {
  std::string bytes("\x76\x44\x65\x44\0\x01\x02\0", 8);
  for (const std::string_view text : texts) bytes.append(text).append(1, '\0');
  return bytes;
}

inline std::string cookieLine(std::string_view domain, std::string_view name, std::string_view value) {
  std::string line(domain);
  return line.append("\tTRUE\t/\tFALSE\t1023456789\t").append(name).append("\t").append(value).append("\n");
}

}  // namespace zub
