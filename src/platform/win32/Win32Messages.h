// The system's message box. While it is open, none of the program's windows takes input. Throws EndOfProcess where
// the program is ended meanwhile: from the tray, by a timer, with the session.
#pragma once

#include "platform/Services.h"
#include "platform/win32/OwnerWindow.h"

namespace zub {

class Win32Messages : public Messages {
 public:
  explicit Win32Messages(OwnerWindow owner) : owner_(std::move(owner)) {}
  void show(std::string_view prompt, int style, std::string_view title) override;

 private:
  OwnerWindow owner_;
};

}  // namespace zub
