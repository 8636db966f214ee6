// Calls that not every Windows has, looked up when they are needed.
#pragma once

#include "platform/host/win32/WindowsHeader.h"

namespace zub {

// Null where this Windows lacks the call. The library stays loaded.
template <class Call>
Call loadedCall(const char* library, const char* name) {
  const HMODULE module = LoadLibraryA(library);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace zub
