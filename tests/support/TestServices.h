// The services of the test PC: those of a PC in a folder under a layer that fails, records and answers as the
// test has ordered.
#pragma once

#include "platform/folder/DateText.h"
#include "platform/folder/FolderRegistry.h"
#include "platform/folder/FolderServices.h"
#include "support/Faults.h"
#include "support/TestPc.h"

namespace zub {

using FileFaults = Faults<TestPc::Call, ErrorNumber>;
using KeyFaults = Faults<TestPc::KeyCall, RegistryStatus>;

class TestFiles : public Files {
 public:
  TestFiles(Files& files, FileFaults& faults) : files_(files), faults_(faults) {}

  std::unique_ptr<FileSearch> find(std::string_view path) override { return files_.find(path); }
  std::uint32_t attributes(std::string_view path) override { return files_.attributes(path); }
  void resetAttributes(std::string_view path) override;
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override;
  std::int64_t openedLength(std::string_view path) override;
  void remove(std::string_view path) override;
  bool fileExists(std::string_view path) override { return files_.fileExists(path); }
  bool folderExists(std::string_view path) override { return files_.folderExists(path); }
  void createFolder(std::string_view path) override;
  void deleteFolder(std::string_view path) override;
  std::string shortPath(std::string_view path) override { return files_.shortPath(path); }

 private:
  Files& files_;
  FileFaults& faults_;
};

class TestRegistry : public Registry {
 public:
  TestRegistry(FolderRegistry& registry, KeyFaults& faults) : registry_(registry), faults_(faults) {}

  RegistryKey hive(Hive which) const override { return registry_.hive(which); }
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                      RegistryKey& opened) override;
  RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                        RegistryKey& opened) override;
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override;
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           std::uint32_t& type, std::uint8_t* data, std::uint32_t& dataLength) override;
  RegistryStatus query(RegistryKey key, std::string_view name, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override;
  RegistryStatus set(RegistryKey key, std::string_view name, std::uint32_t type,
                     std::span<const std::uint8_t> data) override;
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override;
  RegistryStatus deleteKey(RegistryKey key, std::string_view path) override;
  RegistryStatus close(RegistryKey key) override { return registry_.close(key); }

 private:
  // Success where the call is not to fail.
  RegistryStatus fault(TestPc::KeyCall call, RegistryKey key, std::string_view path = {});

  FolderRegistry& registry_;
  KeyFaults& faults_;
};

class TestClock : public Clock {
 public:
  explicit TestClock(TestPc& pc) : pc_(pc) {}
  SystemTime local() override { return pc_.now; }
  std::string dateText(const SystemTime& time) override { return shortDate(time); }
  std::string timeText(const SystemTime& time) override { return shortTime(time); }
  SystemTime parse(std::string_view text) override { return parseDateTime(text, pc_.now); }
  std::uint64_t ticks() override { return pc_.ticks; }

 private:
  TestPc& pc_;
};

class TestShell : public Shell {
 public:
  explicit TestShell(TestPc& pc) : pc_(pc) {}
  std::int32_t emptyRecycleBin(std::uint32_t flags) override {
    pc_.recycleFlags.push_back(flags);
    return pc_.recycleResult;
  }
  void updateRecycleBinIcon() override { ++pc_.recycleIconUpdates; }
  void open(std::string_view document) override { pc_.opened.emplace_back(document); }
  void start(std::string_view program) override { pc_.started.emplace_back(program); }
  FolderPick browseForFolder(std::string_view prompt) override {
    pc_.folderPrompt = prompt;
    return pc_.folderPick;
  }

 private:
  TestPc& pc_;
};

class TestRestart : public Restart {
 public:
  TestRestart(TestPc& pc, Restart& restart) : pc_(pc), restart_(restart) {}
  void deleteAtRestart(std::string_view file) override {
    pc_.restartDeletes.emplace_back(file);
    restart_.deleteAtRestart(file);
  }
  void writeProfile(std::string_view section, std::string_view key, std::string_view value,
                    std::string_view file) override {
    restart_.writeProfile(section, key, value, file);
  }
  std::uint32_t platformId(std::uint32_t recordSize) override { return restart_.platformId(recordSize); }

 private:
  TestPc& pc_;
  Restart& restart_;
};

class TestProcess : public Process {
 public:
  explicit TestProcess(TestPc& pc) : pc_(pc) {}
  std::string commandLine() override { return pc_.commandLine; }
  bool otherInstanceRuns() override { return pc_.otherInstance; }
  [[noreturn]] void end() override { throw EndOfProcess{}; }

 private:
  TestPc& pc_;
};

class TestEvents : public EventLoop {
 public:
  explicit TestEvents(TestPc& pc) : pc_(pc) {}
  void DoEvents() override {
    ++pc_.turns;
    if (!pc_.onDoEvents) return;
    const auto run = pc_.onDoEvents;  // it may put another one in its place
    run(pc_.turns);
  }

 private:
  TestPc& pc_;
};

class TestMessages : public Messages {
 public:
  explicit TestMessages(TestPc& pc) : pc_(pc) {}
  void show(std::string_view prompt, int style, std::string_view title) override {
    pc_.messages.push_back({std::string(prompt), style, std::string(title)});
  }

 private:
  TestPc& pc_;
};

class TestTray : public Tray {
 public:
  explicit TestTray(TestPc& pc) : pc_(pc) {}
  void add(std::string_view tip) override { pc_.tray.push_back("add " + std::string(tip)); }
  void remove() override { pc_.tray.emplace_back("remove"); }

 private:
  TestPc& pc_;
};

}  // namespace zub
