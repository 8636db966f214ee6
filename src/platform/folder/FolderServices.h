// The small services of a PC in a folder.
#pragma once

#include <functional>

#include "platform/Services.h"
#include "platform/folder/FolderDisk.h"
#include "platform/folder/FolderFiles.h"
#include "platform/folder/PcFacts.h"

namespace zub {

class FolderDrives : public Drives {
 public:
  FolderDrives(FolderDisk& disk, const PcFacts& facts) : disk_(disk), facts_(facts) {}

  std::vector<std::string> list() override;
  bool exists(std::string_view drive) override;
  DriveType type(std::string_view drive) override;

 private:
  FolderDisk& disk_;
  const PcFacts& facts_;
};

class FolderSystemFolders : public SystemFolders {
 public:
  explicit FolderSystemFolders(const PcFacts& facts) : facts_(facts) {}

  std::string temp(std::uint32_t room) override;
  std::string windows() override { return facts_.windows.text(); }
  std::string programFolder() override { return facts_.program.text(); }
  std::string programFile() override { return "zub.exe"; }
  std::string current() override { return facts_.current.text(); }

 private:
  const PcFacts& facts_;
};

class FolderRestart : public Restart {
 public:
  FolderRestart(FolderFiles& files, PcFacts& facts) : files_(files), facts_(facts) {}

  void deleteAtRestart(std::string_view file) override;  // as a fact of the PC
  void writeProfile(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override;
  std::uint32_t platformId(std::uint32_t recordSize) override;

 private:
  FolderFiles& files_;
  PcFacts& facts_;
};

// The shell of a PC that nobody sits at: there is nothing to open and nobody to ask.
class FolderShell : public Shell {
 public:
  FolderShell(Files& files, Drives& drives, const PcFacts& facts)
      : files_(files), drives_(drives), facts_(facts) {}

  // Empties the bin folders of the fixed drives and leaves the folders themselves. Of those that hold a bin for
  // each user only that of the PC's user is meant.
  std::int32_t emptyRecycleBin(std::uint32_t flags) override;
  std::vector<std::string> recycleBins() override;
  void updateRecycleBinIcon() override {}
  void open(std::string_view) override {}
  void start(std::string_view program) override;
  FolderPick browseForFolder(std::string_view) override { return {}; }

 private:
  Files& files_;
  Drives& drives_;
  const PcFacts& facts_;
};

class FolderProcess : public Process {
 public:
  // `outdated`: another program has changed the PC since this one read it; asked with the folder taken.
  FolderProcess(HostDir& root, std::string commandLine, std::function<bool()> outdated)
      : root_(root), commandLine_(std::move(commandLine)), outdated_(std::move(outdated)) {}

  std::string commandLine() override { return commandLine_; }
  // Takes the PC's folder for this process where no other one has it or had it since the PC was read. PcError
  // where the host fails.
  bool otherInstanceRuns() override;
  [[noreturn]] void end() override;

 private:
  HostDir& root_;
  std::string commandLine_;
  std::function<bool()> outdated_;
  bool taken_ = false;
};

class FolderTray : public Tray {
 public:
  void add(std::string_view) override {}
  void remove() override {}
};

}  // namespace zub
