// Small routines that the whole program shares.
#pragma once

#include <string_view>

#include "platform/Platform.h"
#include "state/Options.h"

namespace zub {

class UserFunctions {
 public:
  UserFunctions(const Platform& pc, const Options& options) : pc_(pc), options_(options) {}

  // The system's message box. An error message shows only while chkSkipMessages is 1.
  void ShowMessage(std::string_view prompt, int style, std::string_view title, bool isError);
  // Asks with a version record that does not tell its size, which every system refuses: false everywhere, and
  // locked files take the wininit.ini road.
  bool IsWinNT();

 private:
  const Platform& pc_;
  const Options& options_;
};

}  // namespace zub
