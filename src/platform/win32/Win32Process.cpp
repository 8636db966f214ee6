#include "platform/win32/Win32Process.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {

// A mutex of a program with other rights, as one that runs as administrator, is there and cannot be had.
Win32Process::Win32Process() {
  SetLastError(ERROR_SUCCESS);
  mutex_ = CreateMutexA(nullptr, FALSE, "Zubrane runs");
  const DWORD result = GetLastError();
  other_ = result == ERROR_ALREADY_EXISTS || result == ERROR_ACCESS_DENIED;
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

void Win32Process::end() {
  throw EndOfProcess{};
}

}  // namespace zub
