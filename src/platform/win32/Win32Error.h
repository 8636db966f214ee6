// Failures of the system's calls as run-time errors.
#pragma once

#include "base/RuntimeError.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {

// 57 for those that no row knows.
ErrorNumber errorNumberOf(DWORD systemError);
// Throws what the last call of this thread failed with.
[[noreturn]] void throwLastError();

}  // namespace zub
