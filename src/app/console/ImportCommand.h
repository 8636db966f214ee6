// Makes a PC folder from exports of a registry.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace zub {

struct ImportWanted {
  struct Export {
    std::string file;   // on the host
    std::string below;  // where its keys lie; empty where they name their hives
  };
  std::vector<Export> exports;
  std::string user;
  std::map<char, std::string> drives;  // by upper-case letters: folders of the host
  std::string folder;                  // to be made
};

// The words behind "import". UsageError where they ask for nothing.
ImportWanted importWanted(const std::vector<std::string>& arguments);

// Reads and checks the exports, each on top of the ones before it, and makes the folder of them; tells what was read and
// what was found or assumed. The exit status; PcError, with nothing made, where an export cannot be read.
int importCommand(const std::vector<std::string>& arguments);

}  // namespace zub
