#include "platform/host/win32/ReparsePoint.h"

#include "platform/host/win32/NtCalls.h"

namespace zub {

bool isLink(DWORD attributes, DWORD tag) {
  return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && (tag == 0 || IsReparseTagNameSurrogate(tag));
}

DWORD tagOf(HANDLE file, DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0 || nt().queryInformation == nullptr) return 0;
  FILE_ATTRIBUTE_TAG_INFORMATION facts{};
  IO_STATUS_BLOCK io;
  const NTSTATUS status = nt().queryInformation(file, &io, &facts, sizeof facts, FileAttributeTagInformation);
  return status >= 0 ? facts.ReparseTag : 0;
}

}  // namespace zub
