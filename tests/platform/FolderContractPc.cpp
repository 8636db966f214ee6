#include <cstdio>

#include "platform/ContractPc.h"
#include "platform/folder/CodePage1252.h"
#include "platform/host/HostDir.h"
#include "support/TempFolder.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace zub {

// C:\Scratch\name lies in the host's C/Scratch; the link's text is the target's place on the host.
bool FolderContractPc::link([[maybe_unused]] const std::string& path,
                            [[maybe_unused]] const std::string& target) {
#ifdef _WIN32
  return false;
#else
  const auto hostPath = [this](std::string name) {
    for (char& letter : name) {
      if (letter == '\\') letter = '/';
    }
    return hostFolder() + '/' + name.front() + name.substr(2);
  };
  return symlink(hostPath(target).c_str(), hostPath(path).c_str()) == 0;
#endif
}

bool FolderContractPc::keepsShortNames() const {
#ifdef _WIN32
  return true;
#else
  return false;
#endif
}

// The host's name of a told one.
static std::string hostName(std::u16string_view name) {
  std::string told;
  for (const char16_t unit : name) {
    char standIn[8];
    std::snprintf(standIn, sizeof standIn, "<%04X>", static_cast<unsigned>(unit));
    told += standIn;
  }
  return utf8FromAnsi(told);
}

void FolderContractPc::wide(std::u16string_view name, bool folder) {
  const auto scratch = openHostDir(hostFolder() + "/C/Scratch");
  if (folder)
    REQUIRE(scratch->makeDir(hostName(name)) == HostError::None);
  else
    writeHostFile(*scratch, hostName(name), "x");
}

bool FolderContractPc::hasWide(std::u16string_view name) const {
  HostStat stat;
  return openHostDir(hostFolder() + "/C/Scratch")->stat(hostName(name), stat) == HostError::None;
}

void FolderContractPc::wideKey(std::u16string_view name) {
  TestPc::key("HKEY_CURRENT_USER\\" + key() + '\\' + ansiFromUtf8(hostName(name)));
}

}  // namespace zub
