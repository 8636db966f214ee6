#include "cleaners/IECookieIndex.h"

namespace zub {
namespace {

constexpr std::int64_t FirstRecord = 20480;
constexpr std::size_t TagSize = 4;
constexpr std::size_t TextOffset = 97;  // the record's URL and file name, with what lies around them

// The printable characters; each run of NULs becomes one blank, all else is left out.
void appendReadable(std::string& text, std::string_view bytes) {
  bool inNuls = false;
  for (const char c : bytes) {
    if (c >= 33 && c <= 126) {
      text += c;
      inNuls = false;
    } else if (c == 0) {
      if (!inNuls) text += ' ';
      inNuls = true;
    }
  }
}

}  // namespace

IECookieIndex::IECookieIndex(Files& files, std::string_view path) : file_(files, path, OpenMode::Binary) {
  file_.seek(FirstRecord);
}

bool IECookieIndex::next(IECookie& cookie) {
  constexpr std::string_view scheme = "http://";
  for (;;) {
    record_.fill(0);
    if (file_.read(record_) == 0) return false;
    const std::string_view record(record_.data(), record_.size());
    const std::string_view tag = record.substr(0, TagSize);
    if (tag != "URL " && tag != "LEAK") continue;

    item_ = scheme;
    appendReadable(item_, record.substr(TextOffset));
    // What stands before the first "@" is the user's name.
    const auto user = item_.find('@');
    if (user != std::string::npos) item_.erase(scheme.size(), user + 1 - scheme.size());
    const auto afterBlank = item_.find(' ') + 1;  // 0 where there is none
    cookie.site.assign(item_, 0, afterBlank);
    cookie.file.assign(item_, afterBlank);
    return true;
  }
}

}  // namespace zub
