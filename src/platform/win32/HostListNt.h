// A listing of an open folder of the machine that holds a PC folder.
#pragma once

#include <vector>

#include "platform/folder/HostDir.h"
#include "platform/win32/NtCalls.h"

namespace zub {

HostStat hostStat(ULONG attributes, LARGE_INTEGER size);

class HostListNt : public HostList {
 public:
  explicit HostListNt(NtHandle folder) : folder_(std::move(folder)) {}
  bool next(HostEntry& entry) override;

 private:
  bool fill();

  NtHandle folder_;
  std::vector<ULONGLONG> buffer_ = std::vector<ULONGLONG>(8192);  // aligned as the records want it
  const FILE_DIRECTORY_INFORMATION* record_ = nullptr;
};

}  // namespace zub
