// The system's ANSI code page.
#pragma once

#include "platform/CodePage.h"

namespace zub {

class Win32CodePage : public CodePage {
 public:
  std::string upper(std::string_view text) const override;
  std::string toldPath(std::string_view path) const override;
};

}  // namespace zub
