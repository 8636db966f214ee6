// Internet Explorer's index of its cookies, index.dat, as far as it tells which site a cookie file belongs to.
//
// The file is taken as a row of chunks of 256 bytes behind its header and tables; the length that a record
// tells of itself is not followed. A record that does not begin at a chunk is not seen.
#pragma once

#include <string>
#include <string_view>

#include "platform/FileReader.h"

namespace zub {

struct IECookie {
  std::string site;  // "http://", the site and one blank
  std::string file;  // what the record holds behind that: the file's name, with a blank behind it as a rule
};

class IECookieIndex {
 public:
  // Fails as Files::open does. The browser may go on writing it meanwhile.
  IECookieIndex(Files& files, std::string_view path);

  // The next chunk that is a record; false at the end. A cut-off last chunk counts as filled up with NULs.
  bool next(IECookie& cookie);

 private:
  FileReader file_;
  std::string item_;
};

}  // namespace zub
