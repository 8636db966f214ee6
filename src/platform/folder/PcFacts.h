// The facts of a PC in a folder that are no files and no registry: the text pc.txt, one "name = value" a line. The
// lines are kept as they stand, with their comments, so that a save changes only what the program changed.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Services.h"
#include "platform/folder/Family.h"
#include "platform/folder/FolderPath.h"
#include "platform/folder/PcText.h"

namespace zub {

class PcFacts {
 public:
  static constexpr const char* FileName = "pc.txt";

  // `text` is UTF-8, lines end in LF or CR LF. PcError with the line where a name is unknown, a value is bad
  // or a fact that can stand once stands twice.
  explicit PcFacts(std::string_view text);

  const Family* family = &family9x;
  FolderPath windows;
  FolderPath temp;
  FolderPath program;
  FolderPath current;
  std::string user;                          // a branch of HKEY_USERS; empty for the text's HKEY_CURRENT_USER
  std::map<char, DriveType> drives;          // those that are told
  std::map<char, std::string> driveFolders;  // of those that lie elsewhere: on the host, in UTF-8
  std::set<char> readOnlyDrives;             // by their letters
  std::set<std::string> locked;              // FolderPath::key of each
  std::set<std::string> hidden;
  std::set<std::string> system;
  std::vector<std::string> noRights;  // registry paths as written
  std::vector<std::string> removeAtRestart;

  bool anyAttributes() const { return !hidden.empty() || !system.empty(); }
  bool anyPaths() const { return !locked.empty() || anyAttributes(); }

  // What the program changes.
  void dropAttributes(const std::string& key);  // hidden and system of this path
  void addRemoveAtRestart(const FolderPath& path);

  bool changed() const { return changed_; }
  void saved() { changed_ = false; }
  std::string text() const;

 private:
  void take(const PcLine& line);

  std::vector<std::string> lines_;  // with their ends; empty when taken away
  std::unordered_multimap<std::string, std::size_t> attributeLines_;  // hidden and system, by FolderPath::key
  std::set<std::string> seen_;
  bool changed_ = false;
};

}  // namespace zub
