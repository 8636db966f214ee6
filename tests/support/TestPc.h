// A PC for tests: a builder in, inspectable out. It is a PC in a temporary folder, removed with the object,
// under a layer that records, scripts and injects faults. Paths are Windows paths in ANSI, registry paths
// start with the hive's name ("HKEY_CURRENT_USER\\Software\\...").
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "platform/Platform.h"

namespace zub {

class TestPc {
 public:
  // A Windows 98 PC: drive C: (fixed) with C:\WINDOWS, C:\WINDOWS\TEMP and C:\Program Files\Zubrane (the
  // program's folder), current folder C:\, an empty registry with its hives. `facts` are further lines of
  // pc.txt, such as "family = nt" or "drive D = fixed"; a line given here wins over the default.
  // `registry` is what it holds at first, as the text of an export.
  explicit TestPc(std::vector<std::string> facts = {}, std::string_view registry = {});
  ~TestPc();
  TestPc(const TestPc&) = delete;
  TestPc& operator=(const TestPc&) = delete;

  Platform& platform();
  const std::string& hostFolder() const;  // the folder on this machine that holds the PC

  // Building; folders and keys on the way are made.
  void file(std::string_view path, std::string_view bytes = "x");
  void folder(std::string_view path);
  void readOnly(std::string_view path);
  void hide(std::string_view path);
  void key(std::string_view path);
  void value(std::string_view key, std::string_view name, std::string_view text);
  void value(std::string_view key, std::string_view name, ValueType type, std::string_view data);
  void shellFolder(std::string_view name, std::string_view path);  // a value of the user's Shell Folders key

  // Looking.
  bool hasFile(std::string_view path) const;
  bool hasFolder(std::string_view path) const;
  std::string bytes(std::string_view path) const;  // of an existing file
  bool hasKey(std::string_view path) const;
  bool hasValue(std::string_view key, std::string_view name) const;
  std::optional<std::string> text(std::string_view key,
                                  std::string_view name) const;  // stored bytes, cut at the NUL
  std::optional<std::string> data(std::string_view key, std::string_view name) const;  // stored bytes
  std::vector<std::string> valueNames(std::string_view key) const;

  // Every file (with its length and a checksum), folder, key and value (with its data), one line each,
  // sorted.
  std::string snapshot() const;
  // The lines that only `before` has, with "- " in front, and then those that only the PC as it is now has, with
  // "+ ".
  std::string diffSince(std::string_view before) const;

  // What the next start of the program finds.
  std::string commandLine;
  bool otherInstance = false;

  // The clock stands until a test moves it. `ticks` is the steady clock, in milliseconds.
  SystemTime now{2001, 9, 5, 14, 10, 20, 30, 0};
  std::uint64_t ticks = 0;

  // Runs inside each DoEvents with the number of the turn, from 1.
  std::function<void(int turn)> onDoEvents;
  int turns = 0;

  // Hears each call to the PC before it is made, in words such as "remove folder C:\\a". What only computes (texts of
  // dates, upper case) and the steady clock are not told.
  std::function<void(const std::string& call)> onCall;

  // The call fails as told instead of doing its work, until `clearFaults`. It is named by the words that `onCall` hears
  // and, where these are on something open, its path: "remove C:\\a.txt", "subkey HKEY_CURRENT_USER\\A". The case of
  // letters does not count.
  void fail(const std::string& call, ErrorNumber number);
  void fail(const std::string& call, RegistryStatus status);
  void clearFaults();
  void lock(std::string_view path);  // held open by another program
  void unlock(std::string_view path);

  // What the program did.
  struct Message {
    std::string prompt;
    int style;
    std::string title;
  };
  std::vector<Message> messages;
  std::vector<std::string> opened;   // Shell::open
  std::vector<std::string> started;  // Shell::start
  FolderPick folderPick;             // what the folder picker answers
  std::string folderPrompt;          // what it was asked with
  std::int32_t recycleResult = 0;    // what emptying the recycle bin answers
  std::vector<std::string> tray;     // "add TIP", "remove"

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace zub
