#include "support/TestServices.h"

namespace zub {
namespace {

using Call = TestPc::Call;
using KeyCall = TestPc::KeyCall;

void strike(FileFaults& faults, Call call, std::string_view path) {
  if (const auto failure = faults.of(call, path)) throw RuntimeError(*failure);
}

class TestChannel : public FileChannel {
 public:
  TestChannel(std::unique_ptr<FileChannel> channel, FileFaults& faults, std::string_view path)
      : channel_(std::move(channel)), faults_(faults), path_(path) {}

  std::int64_t length() override { return channel_->length(); }
  void seek(std::int64_t offset) override { channel_->seek(offset); }
  std::size_t read(std::span<char> buffer) override {
    strike(faults_, Call::Read, path_);
    return channel_->read(buffer);
  }
  void write(std::string_view bytes) override {
    strike(faults_, Call::Write, path_);
    channel_->write(bytes);
  }
  void close() override { channel_->close(); }
  void closeOnDisk() override { channel_->closeOnDisk(); }

 private:
  std::unique_ptr<FileChannel> channel_;
  FileFaults& faults_;
  std::string path_;
};

}  // namespace

void TestFiles::resetAttributes(std::string_view path) {
  strike(faults_, Call::ResetAttributes, path);
  files_.resetAttributes(path);
}

std::unique_ptr<FileChannel> TestFiles::open(std::string_view path, OpenMode mode) {
  strike(faults_, Call::Open, path);
  return std::make_unique<TestChannel>(files_.open(path, mode), faults_, path);
}

std::int64_t TestFiles::openedLength(std::string_view path) {
  strike(faults_, Call::OpenedLength, path);
  return files_.openedLength(path);
}

void TestFiles::remove(std::string_view path) {
  strike(faults_, Call::Remove, path);
  files_.remove(path);
}

void TestFiles::createFolder(std::string_view path) {
  strike(faults_, Call::CreateFolder, path);
  files_.createFolder(path);
}

void TestFiles::deleteFolder(std::string_view path) {
  strike(faults_, Call::DeleteFolder, path);
  files_.deleteFolder(path);
}

RegistryStatus TestRegistry::fault(KeyCall call, RegistryKey key, std::string_view path) {
  if (!faults_.any()) return status::Success;
  std::string whole = registry_.pathOf(key);
  if (!path.empty()) whole.append("\\").append(path);
  return faults_.of(call, whole).value_or(status::Success);
}

RegistryStatus TestRegistry::open(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                  RegistryKey& opened) {
  const RegistryStatus failure = fault(KeyCall::Open, parent, path);
  return failure != status::Success ? failure : registry_.open(parent, path, rights, opened);
}

RegistryStatus TestRegistry::create(RegistryKey parent, std::string_view path, std::uint32_t rights,
                                    RegistryKey& opened) {
  const RegistryStatus failure = fault(KeyCall::Create, parent, path);
  return failure != status::Success ? failure : registry_.create(parent, path, rights, opened);
}

RegistryStatus TestRegistry::enumKey(RegistryKey key, std::uint32_t index, char* name,
                                     std::uint32_t& length) {
  const RegistryStatus failure = fault(KeyCall::EnumKey, key);
  return failure != status::Success ? failure : registry_.enumKey(key, index, name, length);
}

RegistryStatus TestRegistry::enumValue(RegistryKey key, std::uint32_t index, char* name,
                                       std::uint32_t& length, std::uint32_t& type, std::uint8_t* data,
                                       std::uint32_t& dataLength) {
  const RegistryStatus failure = fault(KeyCall::EnumValue, key);
  if (failure != status::Success) return failure;
  return registry_.enumValue(key, index, name, length, type, data, dataLength);
}

RegistryStatus TestRegistry::query(RegistryKey key, std::string_view name, std::uint32_t& type,
                                   std::uint8_t* data, std::uint32_t& dataLength) {
  const RegistryStatus failure = fault(KeyCall::Query, key);
  return failure != status::Success ? failure : registry_.query(key, name, type, data, dataLength);
}

RegistryStatus TestRegistry::set(RegistryKey key, std::string_view name, std::uint32_t type,
                                 std::span<const std::uint8_t> data) {
  const RegistryStatus failure = fault(KeyCall::Set, key);
  return failure != status::Success ? failure : registry_.set(key, name, type, data);
}

RegistryStatus TestRegistry::deleteValue(RegistryKey key, std::string_view name) {
  const RegistryStatus failure = fault(KeyCall::DeleteValue, key);
  return failure != status::Success ? failure : registry_.deleteValue(key, name);
}

RegistryStatus TestRegistry::deleteKey(RegistryKey key, std::string_view path) {
  const RegistryStatus failure = fault(KeyCall::DeleteKey, key, path);
  return failure != status::Success ? failure : registry_.deleteKey(key, path);
}

}  // namespace zub
