// What lies over the services of a PC in a folder: it tells the test each call, lets those fail that the test has ordered
// to, and answers as the test says where nothing is below.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/folder/CodePage1252.h"
#include "platform/folder/DateText.h"
#include "platform/folder/FolderRegistry.h"
#include "support/TestPc.h"

namespace zub {

class Calls {
 public:
  explicit Calls(const TestPc& pc) : pc_(pc) {}
  bool areHeard() const { return static_cast<bool>(pc_.onCall); }
  void tell(std::string_view what, std::string_view detail = {}) const {
    if (areHeard()) pc_.onCall(words(what, detail));
  }
  void fail(const std::string& call, std::int32_t number) { faults_.emplace_back(call, number); }
  void clearFaults() { faults_.clear(); }
  bool haveFaults() const { return !faults_.empty(); }
  // The number that this call is to fail with; 0 where it is not to.
  std::int32_t failureOf(std::string_view what, std::string_view path) const {
    for (const auto& [call, number] : faults_) {
      if (equalFolded(call, words(what, path))) return number;
    }
    return 0;
  }

 private:
  static std::string words(std::string_view what, std::string_view detail) {
    return std::string(what).append(detail.empty() ? "" : " ").append(detail);
  }

  const TestPc& pc_;
  std::vector<std::pair<std::string, std::int32_t>> faults_;
};

// A service over the one that does the work, for the path that the calls are about where they do not name one.
template <class Service, class Under>
class Over : public Service {
 public:
  Over(Under service, const Calls& heard, std::string_view about = {})
      : under(std::forward<Under>(service)), calls(heard), path(about) {}

 protected:
  void strike(std::string_view what, std::string_view which) const {
    if (const std::int32_t number = calls.failureOf(what, which))
      throw RuntimeError(static_cast<ErrorNumber>(number));
  }
  // What takes a call on what was found or opened, once it is told.
  auto& on(const std::string& what, std::string_view detail = {}) const {
    calls.tell("  " + what, detail);
    strike(what, path);
    return *under;
  }

  Under under;
  const Calls& calls;
  const std::string path;
};

struct TestChannel : Over<FileChannel, std::unique_ptr<FileChannel>> {
  using Over::Over;
  std::int64_t length() override { return under->length(); }
  void seek(std::int64_t offset) override { on("go to", std::to_string(offset)).seek(offset); }
  std::size_t read(std::span<char> buffer) override { return on("read").read(buffer); }
  void write(std::string_view bytes) override { on("write", std::to_string(bytes.size())).write(bytes); }
  void close() override { on("close").close(); }
  void sync() override { on("wait for the disk").sync(); }
};

// Where calls are heard the entries come by their names: each host has an order of its own.
struct TestSearch : Over<FileSearch, std::unique_ptr<FileSearch>> {
  TestSearch(std::unique_ptr<FileSearch> search, const Calls& heard) : Over(std::move(search), heard) {
    if (!calls.areHeard()) return;
    FoundFile found;
    while (under->next(found)) sorted.insert_or_assign(found.name, found);
  }
  bool next(FoundFile& found) override {
    if (!calls.areHeard()) return under->next(found);
    const bool any = !sorted.empty();
    if (any) found = std::move(sorted.extract(sorted.begin()).mapped());
    calls.tell(any ? "  found" : "  no more", any ? found.name : std::string_view());
    return any;
  }
  std::map<std::string, FoundFile> sorted;
};

// Its first step is told and fails where the file is looked for.
struct TestGrip : Over<FileGrip, std::unique_ptr<FileGrip>> {
  using Over::Over;
  std::uint32_t attributes() override { return under->attributes(); }
  void resetAttributes() override { under->resetAttributes(); }
  std::int64_t length(ReadOnlyBit bit) override { return on("length").length(bit); }
  std::unique_ptr<FileChannel> open() override {
    return std::make_unique<TestChannel>(on("open to write over").open(), calls, path);
  }
  std::int64_t removable(Removal how) override {
    strike("remove", path);
    return under->removable(how);
  }
  void remove() override { on("remove").remove(); }
};

class TestFiles : public Over<Files, Files&> {
 public:
  using Over::Over;
  std::unique_ptr<FileSearch> find(std::string_view name) override {
    auto search = on("search", name).find(name);
    return search ? std::make_unique<TestSearch>(std::move(search), calls) : nullptr;
  }
  std::uint32_t attributes(std::string_view name) override {
    return on("attributes of", name).attributes(name);
  }
  bool fileExists(std::string_view name) override { return on("is there a file", name).fileExists(name); }
  bool folderExists(std::string_view name) override {
    return on("is there a folder", name).folderExists(name);
  }
  std::string shortPath(std::string_view name) override { return on("short path of", name).shortPath(name); }
  std::unique_ptr<FileGrip> grip(std::string_view name) override {
    return std::make_unique<TestGrip>(on("reset attributes of", name).grip(name), calls, name);
  }
  std::unique_ptr<FileChannel> open(std::string_view name, OpenMode mode) override {
    constexpr const char* how[] = {"open to write over", "open to read", "open anew"};
    return std::make_unique<TestChannel>(on(how[static_cast<std::size_t>(mode)], name).open(name, mode),
                                         calls, name);
  }
  void replace(std::string_view name, std::string_view bytes) override {
    on("replace", name).replace(name, bytes);
  }
  void createFolder(std::string_view name) override { on("make folder", name).createFolder(name); }
  void deleteFolder(std::string_view name) override { on("remove folder", name).deleteFolder(name); }

 private:
  Files& on(std::string_view what, std::string_view name) const {
    calls.tell(what, name);
    strike(what, name);
    return under;
  }
};

class TestDrives : public Over<Drives, Drives&> {
 public:
  using Over::Over;
  std::vector<std::string> list() override { return on("list of drives").list(); }
  bool exists(std::string_view drive) override { return on("is there a drive", drive).exists(drive); }
  DriveType type(std::string_view drive) override { return on("kind of drive", drive).type(drive); }

 private:
  Drives& on(std::string_view what, std::string_view drive = {}) const {
    calls.tell(what, drive);
    return under;
  }
};

class TestRegistry : public Over<Registry, FolderRegistry&> {
 public:
  using Over::Over;
  RegistryKey hive(Hive which) const override { return under.hive(which); }
  std::vector<std::string> shownBy(Hive which) const override { return under.shownBy(which); }
  RegistryStatus close(RegistryKey key) override {
    calls.tell("  close");
    return under.close(key);
  }
  RegistryStatus open(RegistryKey parent, std::string_view name, std::uint32_t rights,
                      RegistryKey& opened) override {
    if (const RegistryStatus failure = opening("open", parent, name, rights)) return failure;
    return under.open(parent, name, rights, opened);
  }
  RegistryStatus create(RegistryKey parent, std::string_view name, std::uint32_t rights,
                        RegistryKey& opened) override {
    if (const RegistryStatus failure = opening("open or make", parent, name, rights)) return failure;
    return under.create(parent, name, rights, opened);
  }
  RegistryStatus enumKey(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length) override {
    if (const RegistryStatus failure = on(key, "subkey", std::to_string(index))) return failure;
    return under.enumKey(key, index, name, length);
  }
  RegistryStatus enumValue(RegistryKey key, std::uint32_t index, char* name, std::uint32_t& length,
                           ValueType& type, std::uint8_t* data, std::uint32_t& dataLength) override {
    if (const RegistryStatus failure = on(key, "value", std::to_string(index))) return failure;
    return under.enumValue(key, index, name, length, type, data, dataLength);
  }
  RegistryStatus query(RegistryKey key, std::string_view name, ValueType& type, std::uint8_t* data,
                       std::uint32_t& dataLength) override {
    if (const RegistryStatus failure = on(key, "look at value", quoted(name))) return failure;
    return under.query(key, name, type, data, dataLength);
  }
  RegistryStatus set(RegistryKey key, std::string_view name, ValueType type,
                     std::span<const std::uint8_t> data) override {
    if (const RegistryStatus failure = on(key, "set value", quoted(name))) return failure;
    return under.set(key, name, type, data);
  }
  RegistryStatus deleteValue(RegistryKey key, std::string_view name) override {
    if (const RegistryStatus failure = on(key, "delete value", quoted(name))) return failure;
    return under.deleteValue(key, name);
  }
  RegistryStatus deleteKey(RegistryKey key, std::string_view name) override {
    if (const RegistryStatus failure = on(key, name.empty() ? "delete the key" : "delete subkey", name))
      return failure;
    return under.deleteKey(key, name);
  }

 private:
  static std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }
  RegistryStatus opening(std::string_view what, RegistryKey parent, std::string_view name,
                         std::uint32_t rights) const {
    const std::string whole = under.pathOf(parent) + "\\" + std::string(name);
    const char* how = rights == access::All ? "all rights" : rights == access::Write ? "to write" : "to read";
    calls.tell(what, whole + ", " + how);
    return calls.failureOf(what, whole);
  }
  RegistryStatus on(RegistryKey key, const std::string& what, std::string_view detail) const {
    calls.tell("  " + what, detail);
    return calls.haveFaults() ? calls.failureOf(what, under.pathOf(key)) : status::Success;
  }
};

// Everything that only answers and writes down.
class TestDesk : public Clock, public Shell, public Process, public EventLoop, public Messages, public Tray {
 public:
  TestDesk(TestPc& pc, const Calls& calls) : pc_(pc), calls_(calls) {}

  SystemTime local() override {
    calls_.tell("time");
    return pc_.now;
  }
  std::string dateText(const SystemTime& time) override { return shortDate(time); }
  std::string timeText(const SystemTime& time) override { return shortTime(time); }
  SystemTime parse(std::string_view text) override { return parseDateTime(text, pc_.now); }
  std::uint64_t ticks() override { return pc_.ticks; }

  std::int32_t emptyRecycleBin(std::uint32_t flags) override {
    calls_.tell("empty the recycle bin, flags", std::to_string(flags));
    return pc_.recycleResult;
  }
  std::vector<std::string> recycleBins() override { return {}; }
  void updateRecycleBinIcon() override { calls_.tell("refresh the icon of the bin"); }
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
    calls_.tell("turn");
    ++pc_.turns;
    if (!pc_.onDoEvents) return;
    const auto run = pc_.onDoEvents;  // it may put another one in its place
    run(pc_.turns);
  }
  void show(std::string_view prompt, int style, std::string_view title) override {
    calls_.tell("message", title);
    pc_.messages.push_back({std::string(prompt), style, std::string(title)});
  }
  void add(std::string_view tip) override { pc_.tray.push_back("add " + std::string(tip)); }
  void remove() override { pc_.tray.emplace_back("remove"); }

 private:
  TestPc& pc_;
  const Calls& calls_;
};

}  // namespace zub
