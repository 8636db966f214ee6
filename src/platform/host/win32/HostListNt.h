// A listing of an open folder of the machine that holds a PC folder.
#pragma once

#include <vector>

#include "platform/host/HostDir.h"
#include "platform/host/win32/NtCalls.h"

namespace zub {

// What a system's record tells; `tag` is that of a reparse point.
HostStat hostStat(ULONG attributes, ULONG tag, LARGE_INTEGER size);

// Those of a folder's entries that differ from the long ones.
HostError listShortNames(const NtHandle& folder, std::vector<ShortName>& names);

class HostListNt : public HostList {
 public:
  // With a name, only what has it is told.
  explicit HostListNt(NtHandle folder, std::wstring name = {})
      : folder_(std::move(folder)), name_(std::move(name)) {}
  bool next(HostEntry& entry) override;
  HostError failure() const override { return failure_; }

 private:
  bool fill();

  NtHandle folder_;
  std::wstring name_;
  std::vector<ULONGLONG> buffer_;  // aligned as the records want it
  const FILE_FULL_DIR_INFORMATION* record_ = nullptr;
  HostError failure_ = HostError::None;
};

}  // namespace zub
