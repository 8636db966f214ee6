// A folder on this machine that goes, with all in it, when the object does. Links in it go as links.
#pragma once

#include <memory>
#include <string>

#include "platform/host/HostDir.h"

namespace zub {

class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::string& path() const { return path_; }
  HostDir& dir() { return *dir_; }

 private:
  std::string path_;
  std::unique_ptr<HostDir> dir_;
};

// A whole file of the host, made or replaced, and read; empty where it is missing.
void writeHostFile(HostDir& folder, const std::string& name, std::string_view bytes);
std::string readHostFile(HostDir& folder, const std::string& name);

}  // namespace zub
