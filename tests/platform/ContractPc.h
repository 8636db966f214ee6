// The PCs that the contract suite runs on. Each case is a template over them:
//   TEST_CASE_TEMPLATE("...", Pc, CONTRACT_PCS) { Pc pc; ... }
// and every PC has
//   Platform& platform();
//   std::string folder();                   an empty scratch folder, by its full path, no backslash at its end
//   std::string key();                      a path below HKEY_CURRENT_USER where no key is yet
//   std::string task();                     a name that no task has yet
//   void file(path, bytes);                 makes a file, not by the platform
//   std::string bytes(path);                what is in it, not by the platform
//   void readOnly(path);                    gives it the read-only attribute
//   void hide(path);                        gives it the hidden attribute
//   void lock(path); void unlock(path);     as another program would hold it, sharing nothing
//   bool hold(path, sharing);               has it open to read and write and shares that with others, until
//                                           unlock; false where this PC does not know such a holder
//   bool link(path, folder);                makes a link to a folder; false where this PC can make none
//   void wide(name, folder);                an entry of the scratch folder whose name is any UTF-16
//   bool hasWide(name);                     whether it is there, under exactly this name
//   void wideKey(name);                     the same for a key below key()
//   std::string times(path);                when a file or folder was made and written, as far as this PC tells
//   bool followsLinks();                    a path may go through a link
//   bool keepsShortNames();                 its disk has an 8.3 name for a long one
//   bool deviates(name);                    this PC breaks the contract in a way that is listed by this name
#pragma once

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/PretendContractPc.h"
#include "platform/Sharing.h"
#include "support/TestPc.h"
#ifdef _WIN32
#include "platform/Win32ContractPc.h"
#endif

namespace zub {

class FolderContractPc : public TestPc {
 public:
  explicit FolderContractPc(const char* family, std::string_view registry = {}, const char* fact = "")
      : TestPc({std::string("family = ") + family, fact}, registry) {
    TestPc::folder(folder());
  }
  std::string folder() const { return "C:\\Scratch"; }
  std::string key() const { return "Software\\ZubraneTest"; }
  std::string task() const { return "ZubraneTest"; }
  bool hold(const std::string&, Sharing) { return false; }
  bool link(const std::string& path, const std::string& target);
  void wide(std::u16string_view name, bool folder);
  bool hasWide(std::u16string_view name) const;
  void wideKey(std::u16string_view name);
  std::string times(const std::string& path) const;
  bool followsLinks() const { return false; }
  bool keepsShortNames() const;
  bool deviates(std::string_view) const { return false; }
};

struct FolderPc9x : FolderContractPc {
  FolderPc9x() : FolderContractPc("9x") {}
};
struct FolderPcNt : FolderContractPc {
  FolderPcNt() : FolderContractPc("nt") {}
};

using Pretending9x = Pretending<FolderPc9x>;
using PretendingNt = Pretending<FolderPcNt>;
#ifdef _WIN32
using PretendingWin32 = Pretending<Win32ContractPc>;
#define CONTRACT_PCS FolderPc9x, FolderPcNt, Win32ContractPc, Pretending9x, PretendingNt, PretendingWin32
#else
#define CONTRACT_PCS FolderPc9x, FolderPcNt, Pretending9x, PretendingNt
#endif

// The names that a search tells, sorted, joined by blanks and commas; "null" for none.
inline std::string found(Files& files, const std::string& pattern) {
  const auto search = files.find(pattern);
  if (!search) return "null";
  std::vector<std::string> names;
  FoundFile entry;
  while (search->next(entry)) names.push_back(entry.name);
  std::ranges::sort(names);
  std::string text;
  for (const std::string& name : names) text += text.empty() ? name : ", " + name;
  return text;
}

template <class Pc>
bool isNt(Pc& pc) {
  return pc.platform().restart->platformId(148) == 2;
}

// The number of the error that the call fails with; 0 where it does not fail.
template <class Call>
int failure(Call call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return static_cast<int>(error.number());
  }
  return 0;
}

}  // namespace zub
