// The small services that the program asks of a PC. Text is ANSI.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Time.h"

namespace zub {

enum class DriveType : std::uint8_t {
  Unknown = 0,
  Removable = 1,
  Fixed = 2,
  Network = 3,
  CdRom = 4,
  RamDisk = 5
};

class Drives {
 public:
  virtual ~Drives() = default;
  // The PC's drives in the order of their letters, each beginning with its two characters, such as "C:".
  virtual std::vector<std::string> list() = 0;
  virtual bool exists(std::string_view drive) = 0;
  virtual DriveType type(std::string_view drive) = 0;  // Unknown for a missing drive
};

class SystemFolders {
 public:
  virtual ~SystemFolders() = default;
  // With a trailing backslash; empty on failure, which a path is too that, with its NUL, is longer than `room`.
  virtual std::string temp(std::uint32_t room) = 0;
  virtual std::string windows() = 0;  // no trailing backslash
  // The running program: its folder without a trailing backslash unless it is a root, and its file name.
  virtual std::string programFolder() = 0;
  virtual std::string programFile() = 0;
  virtual std::string current() = 0;  // the current folder
};

// What is to happen to a locked file when the PC starts again.
class Restart {
 public:
  virtual ~Restart() = default;
  virtual void deleteAtRestart(std::string_view file) = 0;
  // Sets a key of a section of a profile file in the Windows folder, made where it is missing. One key stands
  // once in its section: a second write replaces the first. Failures are swallowed.
  virtual void writeProfile(std::string_view section, std::string_view key, std::string_view value,
                            std::string_view file) = 0;
  // The platform number of the system's version record: 1 for the 9x family, 2 for NT. The system refuses a
  // record that does not tell its own size, and then answers 0.
  virtual std::uint32_t platformId(std::uint32_t recordSize) = 0;
};

struct FolderPick {
  bool chosen = false;              // false: the user cancelled
  std::optional<std::string> path;  // none for a virtual folder
};

class Shell {
 public:
  virtual ~Shell() = default;
  virtual std::int32_t emptyRecycleBin(std::uint32_t flags) = 0;  // of all drives; 0 is success
  // The folders whose content goes when the bins are emptied; some may be missing.
  virtual std::vector<std::string> recycleBins() = 0;
  virtual void updateRecycleBinIcon() = 0;
  // A file or an address, with its own program; nothing is told.
  virtual void open(std::string_view document) = 0;
  // A program as the registry may name it: its path, or a path in quotes, with arguments behind; variables of the
  // environment between "%". RuntimeError 53 where it cannot be started.
  virtual void start(std::string_view program) = 0;
  virtual FolderPick browseForFolder(std::string_view prompt) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual SystemTime local() = 0;
  // In the system's short forms, such as "11/21/2026" and "9:05:00 AM".
  virtual std::string dateText(const SystemTime& time) = 0;
  virtual std::string timeText(const SystemTime& time) = 0;
  // By the system's rules for dates and times. What is not told is 0: a date has the time 00:00:00, a time
  // has the date 1899-12-30. RuntimeError 13 where the text is neither.
  virtual SystemTime parse(std::string_view text) = 0;
  // Milliseconds of a steady clock, for timers and displays.
  virtual std::uint64_t ticks() = 0;
};

class Process {
 public:
  virtual ~Process() = default;
  virtual std::string commandLine() = 0;  // the arguments, as typed
  virtual bool otherInstanceRuns() = 0;   // another one of this program works on this PC
  [[noreturn]] virtual void end() = 0;    // ends the process at once, by EndOfProcess
};

// The one place where the program gives the window system a turn.
class EventLoop {
 public:
  virtual ~EventLoop() = default;
  virtual void DoEvents() = 0;  // cheap: it may be called for every file and every block
};

// The system's message box with an OK button. Returns when the user has seen it.
class Messages {
 public:
  virtual ~Messages() = default;
  virtual void show(std::string_view prompt, int style, std::string_view title) = 0;
};

// The program's icon in the tray. Its events go to whoever owns the window system.
class Tray {
 public:
  virtual ~Tray() = default;
  virtual void add(std::string_view tip) = 0;
  virtual void remove() = 0;
};

}  // namespace zub
