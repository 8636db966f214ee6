// Files that only pretend to change: they read through to those of another PC and keep every change in memory. A call
// fails as it would beneath, where rights and holders are asked and nothing is touched.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_set>

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "platform/pretend/PretendChannel.h"

namespace zub {

class PretendFiles : public Files {
 public:
  PretendFiles(Files& beneath, SystemFolders& folders, const CodePage& codePage)
      : beneath_(beneath), systemFolders_(folders), codePage_(codePage) {}

  std::unique_ptr<FileSearch> find(std::string_view path) override;
  std::uint32_t attributes(std::string_view path) override;
  std::unique_ptr<FileGrip> grip(std::string_view path) override;
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override;
  void replace(std::string_view path, std::string_view bytes) override;
  bool fileExists(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void createFolder(std::string_view path) override;
  void deleteFolder(std::string_view path) override;
  std::string shortPath(std::string_view path) override;

  // What is there beneath and not here.
  struct Sums {
    std::int64_t files = 0;
    std::int64_t folders = 0;
    std::int64_t bytes = 0;
  };
  const Sums& removed() const { return removed_; }
  // Told with its full path; folders before what they hold.
  using Tell = std::function<void(bool folder, const std::string& path)>;
  void eachRemoved(const Tell& tell);

 private:
  // A file or folder that was made or written here.
  struct Own {
    std::string name;  // as written
    std::uint32_t attributes = attribute::Archive;
    std::shared_ptr<PretendContent> content;  // null for a folder
    bool overBeneath = false;                 // the file is there beneath too
  };
  // What has changed in a folder, by folded name.
  struct Folder {
    std::string path;                       // with long names
    std::unordered_set<std::string> gone;   // not there any more, of what is there beneath
    std::unordered_set<std::string> reset;  // with its attributes cleared
    std::map<std::string, Own> own;
  };
  // A folder, and what is known of it here.
  struct Place {
    Folder* folder = nullptr;  // null where nothing has changed in it
    std::string key;
    std::string path;     // with long names
    bool there = true;    // as far as is known here
    bool beneath = true;  // the folder beneath shows here
  };
  // A path taken apart. Good until the next change.
  struct Spot {
    std::shared_ptr<const Place> in;
    std::string name;         // folded; empty for a root
    bool folderThere = true;  // as far as is known here
    Own* own = nullptr;
    bool gone = false;

    bool asksBeneath() const { return own == nullptr && !gone && in->beneath; }
    bool isReset() const { return in->folder != nullptr && in->folder->reset.contains(name); }
  };

  class Search;
  class Grip;

  Grip gripOf(std::string_view path);
  Spot locate(std::string_view path);
  const std::shared_ptr<const Place>& enter(std::string_view folder);
  std::string longName(std::string_view path, std::string_view name);
  Folder& changed(const Spot& spot);
  Own& writable(std::string_view path, const Spot& spot);
  [[noreturn]] static void throwMissing(const Spot& spot);
  void checkMakeable(std::string_view path, const Spot& spot);
  void takeOut(const Spot& spot, bool folder, std::int64_t length);
  void removeTree(const std::string& path, std::unique_ptr<RuntimeError>& failure);
  void tellGone(const std::string& path, const Folder* some, const Tell& tell);
  std::string upper(std::string_view text) const { return codePage_.upper(text); }

  Files& beneath_;
  SystemFolders& systemFolders_;
  const CodePage& codePage_;
  std::map<std::string, Folder> folders_;  // by folded path, without a backslash at the end
  Sums removed_;

  // The folder looked at last.
  std::string enteredPath_;  // as it was told
  std::shared_ptr<const Place> entered_;
  unsigned changes_ = 0;
};

}  // namespace zub
