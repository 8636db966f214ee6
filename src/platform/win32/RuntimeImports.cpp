// The compiler's static runtime imports GetTickCount64, which Windows XP lacks, and a program with a missing
// import does not start. The pointer that the import would fill is defined here instead; the runtime needs it
// only for timed waits of threads, of which there are none. The build asks the linker for the symbol, so that
// this file is taken before the system's library.
#include "platform/win32/WindowsHeader.h"

#ifdef __i386__
namespace {

ULONGLONG WINAPI tickCount() {
  return GetTickCount();
}

}  // namespace

extern "C" ULONGLONG(WINAPI* const importedTickCount)() __asm__("__imp__GetTickCount64@0");
ULONGLONG(WINAPI* const importedTickCount)() = tickCount;
#endif
