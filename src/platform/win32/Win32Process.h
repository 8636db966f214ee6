// This process.
#pragma once

#include "platform/Services.h"

namespace zub {

// The first one made on the PC is the first instance; whoever is made while another lives sees it.
class Win32Process : public Process {
 public:
  Win32Process();
  Win32Process(const Win32Process&) = delete;
  Win32Process& operator=(const Win32Process&) = delete;
  ~Win32Process() override;

  std::string commandLine() override;
  bool otherInstanceRuns() override { return other_; }
  [[noreturn]] void end() override;

 private:
  void* mutex_;
  bool other_;
};

}  // namespace zub
