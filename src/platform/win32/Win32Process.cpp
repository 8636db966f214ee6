#include "platform/win32/Win32Process.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/win32/WindowsHeader.h"

namespace zub {

Win32Process::Win32Process() : mutex_(CreateMutexA(nullptr, FALSE, "Zubrane runs")) {
  other_ = mutex_ != nullptr && GetLastError() == ERROR_ALREADY_EXISTS;
}

Win32Process::~Win32Process() {
  if (mutex_ != nullptr) CloseHandle(mutex_);
}

// The system's command line begins with the program, in quotes where its path has blanks.
std::string Win32Process::commandLine() {
  const std::string_view line = GetCommandLineA();
  const bool quoted = line.starts_with('"');
  const std::size_t end = quoted ? line.find('"', 1) : line.find_first_of(" \t");
  if (end == std::string_view::npos) return {};
  return std::string(trimLeft(line.substr(end + 1)));
}

bool Win32Process::otherInstanceRuns() {
  return other_;
}

void Win32Process::end() {
  throw EndOfProcess{};
}

}  // namespace zub
