// What lies over the services of a PC in a folder: faults that the test has ordered, and services that answer as it
// says and write down what they are asked.
#pragma once

#include <initializer_list>
#include <map>
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

// Tells the test what the program calls.
class CallLog {
 public:
  explicit CallLog(const TestPc& pc) : pc_(pc) {}
  bool isOn() const { return static_cast<bool>(pc_.onCall); }
  void operator()(std::initializer_list<std::string_view> words) const {
    if (!pc_.onCall) return;
    std::string call;
    for (const std::string_view word : words) call.append(word);
    pc_.onCall(call);
  }

 private:
  const TestPc& pc_;
};

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
  TestChannel(std::unique_ptr<FileChannel> channel, const FileFaults& faults, const CallLog& log,
              std::string_view path)
      : channel_(std::move(channel)), faults_(faults), log_(log), path_(path) {}

  std::int64_t length() override { return channel_->length(); }
  void seek(std::int64_t offset) override {
    log_({"  go to ", std::to_string(offset)});
    channel_->seek(offset);
  }
  std::size_t read(std::span<char> buffer) override {
    log_({"  read"});
    faults_.strike(TestPc::Call::Read, path_);
    return channel_->read(buffer);
  }
  void write(std::string_view bytes) override {
    log_({"  write ", std::to_string(bytes.size())});
    faults_.strike(TestPc::Call::Write, path_);
    channel_->write(bytes);
  }
  void close() override {
    log_({"  close"});
    channel_->close();
  }
  void sync() override {
    log_({"  wait for the disk"});
    channel_->sync();
  }

 private:
  std::unique_ptr<FileChannel> channel_;
  const FileFaults& faults_;
  const CallLog& log_;
  std::string path_;
};

// Where calls are logged the entries come by their names: each host has an order of its own.
class TestSearch : public FileSearch {
 public:
  TestSearch(std::unique_ptr<FileSearch> search, const CallLog& log) : search_(std::move(search)), log_(log) {
    if (!log_.isOn()) return;
    FoundFile found;
    while (search_->next(found)) sorted_.insert_or_assign(found.name, found);
  }
  bool next(FoundFile& found) override {
    if (!log_.isOn()) return search_->next(found);
    const bool any = !sorted_.empty();
    if (any) found = std::move(sorted_.extract(sorted_.begin()).mapped());
    log_({any ? "  found " : "  no more", any ? found.name : std::string_view()});
    return any;
  }

 private:
  std::unique_ptr<FileSearch> search_;
  const CallLog& log_;
  std::map<std::string, FoundFile> sorted_;
};

// Its first step is logged and fails where the file is looked for.
class TestGrip : public FileGrip {
 public:
  using Call = TestPc::Call;
  TestGrip(std::unique_ptr<FileGrip> grip, const FileFaults& faults, const CallLog& log,
           std::string_view path)
      : grip_(std::move(grip)), faults_(faults), log_(log), path_(path) {}

  std::uint32_t attributes() override { return grip_->attributes(); }
  void resetAttributes() override { grip_->resetAttributes(); }
  std::int64_t length(ReadOnlyBit bit) override {
    log_({"  length"});
    faults_.strike(Call::OpenedLength, path_);
    return grip_->length(bit);
  }
  std::unique_ptr<FileChannel> open() override {
    log_({"  open to write over"});
    faults_.strike(Call::Open, path_);
    return std::make_unique<TestChannel>(grip_->open(), faults_, log_, path_);
  }
  std::int64_t removable(Removal how) override {
    faults_.strike(Call::Remove, path_);
    return grip_->removable(how);
  }
  void remove() override {
    log_({"  remove"});
    faults_.strike(Call::Remove, path_);
    grip_->remove();
  }

 private:
  std::unique_ptr<FileGrip> grip_;
  const FileFaults& faults_;
  const CallLog& log_;
  std::string path_;
};

class TestFiles : public Files {
 public:
  using Call = TestPc::Call;
  TestFiles(Files& files, const FileFaults& faults, const CallLog& log)
      : files_(files), faults_(faults), log_(log) {}

  std::unique_ptr<FileSearch> find(std::string_view path) override {
    log_({"search ", path});
    faults_.strike(Call::Find, path);
    auto search = files_.find(path);
    return search ? std::make_unique<TestSearch>(std::move(search), log_) : nullptr;
  }
  std::uint32_t attributes(std::string_view path) override {
    log_({"attributes of ", path});
    return files_.attributes(path);
  }
  bool fileExists(std::string_view path) override {
    log_({"is there a file ", path});
    return files_.fileExists(path);
  }
  bool folderExists(std::string_view path) override {
    log_({"is there a folder ", path});
    return files_.folderExists(path);
  }
  std::string shortPath(std::string_view path) override {
    log_({"short path of ", path});
    return files_.shortPath(path);
  }
  std::unique_ptr<FileGrip> grip(std::string_view path) override {
    log_({"reset attributes of ", path});
    faults_.strike(Call::ResetAttributes, path);
    return std::make_unique<TestGrip>(files_.grip(path), faults_, log_, path);
  }
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override {
    constexpr const char* how[] = {"open to write over ", "open to read ", "open anew "};
    log_({how[static_cast<std::size_t>(mode)], path});
    faults_.strike(Call::Open, path);
    return std::make_unique<TestChannel>(files_.open(path, mode), faults_, log_, path);
  }
  void replace(std::string_view path, std::string_view bytes) override {
    log_({"replace ", path});
    files_.replace(path, bytes);
  }
  void createFolder(std::string_view path) override {
    log_({"make folder ", path});
    files_.createFolder(path);
  }
  void deleteFolder(std::string_view path) override {
    log_({"remove folder ", path});
    faults_.strike(Call::DeleteFolder, path);
    files_.deleteFolder(path);
  }

 private:
  Files& files_;
  const FileFaults& faults_;
  const CallLog& log_;
};

class TestDrives : public Drives {
 public:
  TestDrives(Drives& drives, const CallLog& log) : drives_(drives), log_(log) {}
  std::vector<std::string> list() override {
    log_({"list of drives"});
    return drives_.list();
  }
  bool exists(std::string_view drive) override {
    log_({"is there a drive ", drive});
    return drives_.exists(drive);
  }
  DriveType type(std::string_view drive) override {
    log_({"kind of drive ", drive});
    return drives_.type(drive);
  }

 private:
  Drives& drives_;
  const CallLog& log_;
};

class TestRegistry : public Registry {
 public:
  using Call = TestPc::KeyCall;
  TestRegistry(FolderRegistry& registry, const KeyFaults& faults, const CallLog& log)
      : registry_(registry), faults_(faults), log_(log) {}

  RegistryKey hive(Hive which) const override { return registry_.hive(which); }
  RegistryStatus close(RegistryKey key) override {
    log_({"  close"});
    return registry_.close(key);
  }
  RegistryStatus open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                      RegistryKey& opened) override {
    log_({"open ", registry_.pathOf(parent), "\\", path, rightsText(rights)});
    return fails(Call::Open, parent, path) ? failure_ : registry_.open(parent, path, rights, opened);
  }
  RegistryStatus create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                        RegistryKey& opened) override {
    log_({"open or make ", registry_.pathOf(parent), "\\", path, rightsText(rights)});
    return fails(Call::Create, parent, path) ? failure_ : registry_.create(parent, path, rights, opened);
  }
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override {
    log_({"  subkey ", std::to_string(index)});
    return fails(Call::EnumKey, key) ? failure_ : registry_.enumKey(key, index, name, length);
  }
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           ValueType& type, std::uint8_t* data, std::uint32_t& dataLength) override {
    log_({"  value ", std::to_string(index)});
    if (fails(Call::EnumValue, key)) return failure_;
    return registry_.enumValue(key, index, name, length, type, data, dataLength);
  }
  RegistryStatus query(RegistryKey key, std::string_view name, ValueType& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override {
    log_({"  look at value \"", name, "\""});
    return fails(Call::Query, key) ? failure_ : registry_.query(key, name, type, data, dataLength);
  }
  RegistryStatus set(RegistryKey key, std::string_view name, ValueType type,
                     std::span<const std::uint8_t> data) override {
    log_({"  set value \"", name, "\""});
    return fails(Call::Set, key) ? failure_ : registry_.set(key, name, type, data);
  }
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override {
    log_({"  delete value \"", name, "\""});
    return registry_.deleteValue(key, name);
  }
  RegistryStatus deleteKey(RegistryKey key, std::string_view path) override {
    log_({path.empty() ? "  delete the key" : "  delete subkey ", path});
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

  static std::string_view rightsText(std::uint32_t rights) {
    return rights == access::All ? ", all rights" : rights == access::Write ? ", to write" : ", to read";
  }

  FolderRegistry& registry_;
  const KeyFaults& faults_;
  const CallLog& log_;
  RegistryStatus failure_ = status::Success;  // of the call that fails now
};

// Everything that only answers and writes down.
class TestDesk : public Clock, public Shell, public Process, public EventLoop, public Messages, public Tray {
 public:
  TestDesk(TestPc& pc, const CallLog& log) : pc_(pc), log_(log) {}

  SystemTime local() override {
    log_({"time"});
    return pc_.now;
  }
  std::string dateText(const SystemTime& time) override { return shortDate(time); }
  std::string timeText(const SystemTime& time) override { return shortTime(time); }
  SystemTime parse(std::string_view text) override { return parseDateTime(text, pc_.now); }
  std::uint64_t ticks() override { return pc_.ticks; }

  std::int32_t emptyRecycleBin(std::uint32_t flags) override {
    log_({"empty the recycle bin, flags ", std::to_string(flags)});
    pc_.recycleFlags.push_back(flags);
    return pc_.recycleResult;
  }
  std::vector<std::string> recycleBins() override { return {}; }
  void updateRecycleBinIcon() override {
    log_({"refresh the icon of the bin"});
    ++pc_.recycleIconUpdates;
  }
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
    log_({"turn"});
    ++pc_.turns;
    if (!pc_.onDoEvents) return;
    const auto run = pc_.onDoEvents;  // it may put another one in its place
    run(pc_.turns);
  }
  void show(std::string_view prompt, int style, std::string_view title) override {
    log_({"message ", title});
    pc_.messages.push_back({std::string(prompt), style, std::string(title)});
  }
  void add(std::string_view tip) override { pc_.tray.push_back("add " + std::string(tip)); }
  void remove() override { pc_.tray.emplace_back("remove"); }

 private:
  TestPc& pc_;
  const CallLog& log_;
};

}  // namespace zub
