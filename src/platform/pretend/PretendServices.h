// The small services of a PC that pretends: what they would do to the PC is left out or kept in memory.
#pragma once

#include "base/RuntimeError.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Services.h"

namespace zub {

class PretendRestart : public Restart {
 public:
  // `files` pretend too: a profile is changed in them.
  PretendRestart(Restart& beneath, SystemFolders& folders, const CodePage& codePage, Files& files)
      : beneath_(beneath), folders_(folders), codePage_(codePage), files_(files) {}

  void deleteAtRestart(std::string_view) override {}
  void writeProfile(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override;
  std::uint32_t platformId(std::uint32_t recordSize) override { return beneath_.platformId(recordSize); }

 private:
  Restart& beneath_;
  SystemFolders& folders_;
  const CodePage& codePage_;
  Files& files_;
};

// Empties the bins of the fixed drives in files that pretend; opens, starts and asks nothing.
class PretendShell : public Shell {
 public:
  PretendShell(Shell& beneath, Files& files) : beneath_(beneath), files_(files) {}

  std::int32_t emptyRecycleBin(std::uint32_t flags) override;
  std::vector<std::string> recycleBins() override { return beneath_.recycleBins(); }
  void updateRecycleBinIcon() override {}
  void open(std::string_view) override {}
  void start(std::string_view) override {}
  FolderPick browseForFolder(std::string_view) override { return {}; }

 private:
  Shell& beneath_;
  Files& files_;
};

// A process that pretends ends; the one that it is part of goes on.
struct EndOfPretence : EndOfProcess {};

// The program beside which this one pretends has the place of the one instance.
class PretendProcess : public Process {
 public:
  std::string commandLine() override { return {}; }
  bool otherInstanceRuns() override { return false; }
  [[noreturn]] void end() override;
};

class PretendTray : public Tray {
 public:
  void add(std::string_view) override {}
  void remove() override {}
};

}  // namespace zub
