#include <cstdio>
#include <filesystem>

#include "platform/ContractPc.h"
#include "platform/folder/CodePage1252.h"
#include "platform/host/HostDir.h"
#include "support/TempFolder.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace zub {

// C:\Scratch\name lies in the host's C/Scratch.
static std::filesystem::path hostPath(const FolderContractPc& pc, const std::string& path) {
  std::string text = utf8FromAnsi(path);
  for (char& letter : text) {
    if (letter == '\\') letter = '/';
  }
  text = pc.hostFolder() + '/' + text.front() + text.substr(2);
  return std::u8string(text.begin(), text.end());
}

// The link's text is the target's place on the host.
bool FolderContractPc::link([[maybe_unused]] const std::string& path,
                            [[maybe_unused]] const std::string& target) {
#ifdef _WIN32
  return false;
#else
  return symlink(hostPath(*this, target).c_str(), hostPath(*this, path).c_str()) == 0;
#endif
}

std::string FolderContractPc::times(const std::string& path) const {
  std::error_code failure;
  const auto written = std::filesystem::last_write_time(hostPath(*this, path), failure);
  return failure ? "" : std::to_string(written.time_since_epoch().count());
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
