#include "platform/ContractPc.h"

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

}  // namespace zub
