// What lies over the services of a PC in a folder: faults that the test has ordered, and services that answer as it
// says and write down what they are asked.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/CodePage1252.h"
#include "platform/folder/DateText.h"
#include "platform/folder/FolderRegistry.h"
#include "support/TestPc.h"

namespace zub {

// Calls that fail instead of doing their work.
template <class Call, class Failure>
class Faults {
 public:
  void add(Call call, std::string_view path, Failure failure) {
    faults_.push_back({call, std::string(path), failure});
  }
  void clear() { faults_.clear(); }
  bool any() const { return !faults_.empty(); }
  std::optional<Failure> of(Call call, std::string_view path) const {
    for (const Fault& fault : faults_) {
      if (fault.call == call && equalFolded(fault.path, path)) return fault.failure;
    }
    return std::nullopt;
  }

 private:
  struct Fault {
    Call call;
    std::string path;
    Failure failure;
  };
  std::vector<Fault> faults_;
};

class FileFaults : public Faults<TestPc::Call, ErrorNumber> {
 public:
  void strike(TestPc::Call call, std::string_view path) const {
    if (const auto failure = of(call, path)) throw RuntimeError(*failure);
  }
};
using KeyFaults = Faults<TestPc::KeyCall, RegistryStatus>;

class TestChannel : public FileChannel {
 public:
  TestChannel(std::unique_ptr<FileChannel> channel, const FileFaults& faults, std::string_view path)
      : channel_(std::move(channel)), faults_(faults), path_(path) {}

  std::int64_t length() override { return channel_->length(); }
  void seek(std::int64_t offset) override { channel_->seek(offset); }
  std::size_t read(std::span<char> buffer) override {
    faults_.strike(TestPc::Call::Read, path_);
    return channel_->read(buffer);
  }
  void write(std::string_view bytes) override {
    faults_.strike(TestPc::Call::Write, path_);
    channel_->write(bytes);
  }
  void close() override { channel_->close(); }
  void sync() override { channel_->sync(); }

 private:
  std::unique_ptr<FileChannel> channel_;
  const FileFaults& faults_;
  std::string path_;
};

class TestFiles : public Files {
 public:
  using Call = TestPc::Call;
  TestFiles(Files& files, const FileFaults& faults) : files_(files), faults_(faults) {}

  std::unique_ptr<FileSearch> find(std::string_view path) override {
    faults_.strike(Call::Find, path);
    return files_.find(path);
  }
  std::uint32_t attributes(std::string_view path) override { return files_.attributes(path); }
  bool fileExists(std::string_view path) override { return files_.fileExists(path); }
  bool folderExists(std::string_view path) override { return files_.folderExists(path); }
  std::string shortPath(std::string_view path) override { return files_.shortPath(path); }
  void resetAttributes(std::string_view path) override {
    faults_.strike(Call::ResetAttributes, path);
    files_.resetAttributes(path);
  }
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override {
    faults_.strike(Call::Open, path);
    return std::make_unique<TestChannel>(files_.open(path, mode), faults_, path);
  }
  std::int64_t openedLength(std::string_view path) override {
    faults_.strike(Call::OpenedLength, path);
    return files_.openedLength(path);
  }
  void remove(std::string_view path) override {
    faults_.strike(Call::Remove, path);
    files_.remove(path);
  }
  void replace(std::string_view path, std::string_view bytes) override {
    faults_.strike(Call::Replace, path);
    files_.replace(path, bytes);
  }
  void createFolder(std::string_view path) override {
    faults_.strike(Call::CreateFolder, path);
    files_.createFolder(path);
  }
  void deleteFolder(std::string_view path) override {
    faults_.strike(Call::DeleteFolder, path);
    files_.deleteFolder(path);
  }

 private:
  Files& files_;
  const FileFaults& faults_;
};

class TestRegistry : public Registry {
 public:
  using Call = TestPc::KeyCall;
  TestRegistry(FolderRegistry& registry, const KeyFaults& faults) : registry_(registry), faults_(faults) {}

  RegistryKey hive(Hive which) const override { return registry_.hive(which); }
  RegistryStatus close(RegistryKey key) override { return registry_.close(key); }
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                      RegistryKey& opened) override {
    return fails(Call::Open, parent, path) ? failure_ : registry_.open(parent, path, rights, opened);
  }
  RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                        RegistryKey& opened) override {
    return fails(Call::Create, parent, path) ? failure_ : registry_.create(parent, path, rights, opened);
  }
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override {
    return fails(Call::EnumKey, key) ? failure_ : registry_.enumKey(key, index, name, length);
  }
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           std::uint32_t& type, std::uint8_t* data, std::uint32_t& dataLength) override {
    if (fails(Call::EnumValue, key)) return failure_;
    return registry_.enumValue(key, index, name, length, type, data, dataLength);
  }
  RegistryStatus query(RegistryKey key, std::string_view name, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override {
    return fails(Call::Query, key) ? failure_ : registry_.query(key, name, type, data, dataLength);
  }
  RegistryStatus set(RegistryKey key, std::string_view name, std::uint32_t type,
                     std::span<const std::uint8_t> data) override {
    return fails(Call::Set, key) ? failure_ : registry_.set(key, name, type, data);
  }
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override {
    return fails(Call::DeleteValue, key) ? failure_ : registry_.deleteValue(key, name);
  }
  RegistryStatus deleteKey(RegistryKey key, std::string_view path) override {
    return fails(Call::DeleteKey, key, path) ? failure_ : registry_.deleteKey(key, path);
  }

 private:
  bool fails(Call call, RegistryKey key, std::string_view path = {}) {
    if (!faults_.any()) return false;
    std::string whole = registry_.pathOf(key);
    if (!path.empty()) whole.append("\\").append(path);
    const auto failure = faults_.of(call, whole);
    failure_ = failure.value_or(status::Success);
    return failure.has_value();
  }

  FolderRegistry& registry_;
  const KeyFaults& faults_;
  RegistryStatus failure_ = status::Success;  // of the call that fails now
};

// Everything that only answers and writes down.
class TestDesk : public Clock, public Shell, public Process, public EventLoop, public Messages, public Tray {
 public:
  explicit TestDesk(TestPc& pc) : pc_(pc) {}

  SystemTime local() override { return pc_.now; }
  std::string dateText(const SystemTime& time) override { return shortDate(time); }
  std::string timeText(const SystemTime& time) override { return shortTime(time); }
  SystemTime parse(std::string_view text) override { return parseDateTime(text, pc_.now); }
  std::uint64_t ticks() override { return pc_.ticks; }

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

  std::string commandLine() override { return pc_.commandLine; }
  bool otherInstanceRuns() override { return pc_.otherInstance; }
  [[noreturn]] void end() override { throw EndOfProcess{}; }

  void DoEvents() override {
    ++pc_.turns;
    if (!pc_.onDoEvents) return;
    const auto run = pc_.onDoEvents;  // it may put another one in its place
    run(pc_.turns);
  }
  void show(std::string_view prompt, int style, std::string_view title) override {
    pc_.messages.push_back({std::string(prompt), style, std::string(title)});
  }
  void add(std::string_view tip) override { pc_.tray.push_back("add " + std::string(tip)); }
  void remove() override { pc_.tray.emplace_back("remove"); }

 private:
  TestPc& pc_;
};

}  // namespace zub
