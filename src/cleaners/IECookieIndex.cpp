#include "cleaners/IECookieIndex.h"

#include <array>

namespace zub {
namespace {

constexpr std::int64_t FirstRecord = 20480;

struct IndexRecord {
  std::array<char, 4> Tag;
  std::array<char, 93> Gap;    // nothing in it is asked for
  std::array<char, 159> Text;  // the record's URL and file name, with what lies around them
};
static_assert(sizeof(IndexRecord) == 256);

template <std::size_t Size>
std::string_view textOf(const std::array<char, Size>& field) {
  return {field.data(), Size};
}

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

IECookieIndex::IECookieIndex(Files& files, std::string_view path) : file_(files, path) {
  file_.seek(FirstRecord);
}

bool IECookieIndex::next(IECookie& cookie) {
  constexpr std::string_view scheme = "http://";
  for (;;) {
    IndexRecord record{};
    if (file_.read({reinterpret_cast<char*>(&record), sizeof record}) == 0) return false;
    const std::string_view tag = textOf(record.Tag);
    if (tag != "URL " && tag != "LEAK") continue;

    item_ = scheme;
    appendReadable(item_, textOf(record.Text));
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
