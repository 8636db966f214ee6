// The file calls of the NT family that work relative to an open folder. They are looked up when they are
// first needed: the 9x family lacks them.
#pragma once

#include <string>
#include <utility>

#include "platform/host/HostDir.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {

struct NtCalls {
  decltype(&::NtCreateFile) createFile;
  NTSTATUS(NTAPI* queryInformation)(HANDLE, IO_STATUS_BLOCK*, void*, ULONG, FILE_INFORMATION_CLASS);
  NTSTATUS(NTAPI* setInformation)(HANDLE, IO_STATUS_BLOCK*, void*, ULONG, FILE_INFORMATION_CLASS);
  NTSTATUS(NTAPI* queryDirectory)
  (HANDLE, HANDLE, void*, void*, IO_STATUS_BLOCK*, void*, ULONG, FILE_INFORMATION_CLASS, BOOLEAN,
   UNICODE_STRING*, BOOLEAN);
  NTSTATUS(NTAPI* read)
  (HANDLE, HANDLE, void*, void*, IO_STATUS_BLOCK*, void*, ULONG, LARGE_INTEGER*, ULONG*);
  NTSTATUS(NTAPI* write)
  (HANDLE, HANDLE, void*, void*, IO_STATUS_BLOCK*, const void*, ULONG, LARGE_INTEGER*, ULONG*);
  NTSTATUS(NTAPI* flush)(HANDLE, IO_STATUS_BLOCK*);

  bool complete() const;
};

const NtCalls& nt();

HostError hostError(NTSTATUS status);

UNICODE_STRING unicodeText(std::wstring& text);  // stands on the text

// Closes a handle of the system when the scope ends.
class NtHandle {
 public:
  NtHandle() = default;
  explicit NtHandle(HANDLE handle) : handle_(handle) {}
  NtHandle(NtHandle&& other) noexcept : handle_(other.handle_) { other.handle_ = nullptr; }
  NtHandle& operator=(NtHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~NtHandle() {
    if (handle_ != nullptr) CloseHandle(handle_);
  }
  HANDLE get() const { return handle_; }
  HANDLE* out() { return &handle_; }

 private:
  HANDLE handle_ = nullptr;
};

}  // namespace zub
