#include "support/TestPc.h"

#include <stdexcept>

#include "base/Text.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/HostText.h"
#include "support/Snapshot.h"
#include "support/TempFolder.h"
#include "support/TestServices.h"

namespace zub {
namespace {

constexpr std::string_view ShellFolders =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// Makes a PC with these facts in a folder, as yet without folders of its own, and gives that folder.
const std::string& preparePc(TempFolder& folder, const std::vector<std::string>& facts,
                             std::string_view registry) {
  std::string text;
  for (const std::string& fact : facts) text += fact + "\n";
  writeHostFile(folder.dir(), PcFacts::FileName, text);
  if (!registry.empty()) writeHostFile(folder.dir(), FolderPc::RegistryName, registry);
  folder.dir().makeDir("C");
  return folder.path();
}

FolderPath parsed(std::string_view path) {
  FolderPath parts;
  if (parsePath(path, FolderPath{}, parts) != PathFault::None) {
    throw std::invalid_argument("no path for a test: " + std::string(path));
  }
  return parts;
}

void require(HostError error, const FolderPath& path) {
  if (error != HostError::None) throw std::runtime_error("the test cannot make " + path.text());
}

}  // namespace

class TestPc::Impl {
 public:
  Impl(TestPc& owner, const std::vector<std::string>& facts, std::string_view text)
      : pc(preparePc(temp, facts, text)),
        disk(pc.driveFolders(), pc.facts(), failures),
        calls(owner),
        files(pc.files, calls),
        registry(pc.registry, calls),
        drives(pc.drives, calls),
        desk(owner, calls),
        platform{&pc.codePage, &registry, &files, &drives, &pc.folders, &pc.restart, &desk,
                 &desk,        &desk,     &desk,  &desk,   &desk,       &pc.tasks} {
    for (const auto& [letter, kind] : pc.facts().drives) pc.root().makeDir({letter});
    for (const FolderPath* path :
         {&pc.facts().windows, &pc.facts().temp, &pc.facts().program, &pc.facts().current}) {
      makeFolder(*path);
    }
  }

  void makeFolder(const FolderPath& path) {
    FolderPath made{path.drive, {}};
    for (const std::string& part : path.parts) {
      made.parts.push_back(part);
      const FolderDisk::Place place = disk.place(made);
      if (!place.exists) require(place.parent->makeDir(place.name), made);
    }
    pc.files.forget();
  }

  // Where a file or folder is or is to be, its folder made.
  FolderDisk::Place makeParent(const FolderPath& path) {
    FolderPath parent = path;
    parent.parts.pop_back();
    makeFolder(parent);
    return disk.place(path);
  }

  std::optional<FolderDisk::Place> find(std::string_view path) {
    try {
      disk.forget();
      FolderDisk::Place place = disk.place(parsed(path));
      if (place.exists) return place;
    } catch (const RuntimeError&) {
    }
    return std::nullopt;
  }

  RegistryNode& makeKey(std::string_view path) {
    RegistryNode* node = pc.registryTree().make(path);
    if (node == nullptr) throw std::invalid_argument("no key for a test: " + std::string(path));
    pc.registry.changed(true);
    return *node;
  }

  TempFolder temp;
  FolderPc pc;
  HostFailures failures;
  FolderDisk disk;
  Calls calls;
  TestFiles files;
  TestRegistry registry;
  TestDrives drives;
  TestDesk desk;
  Platform platform;
};

TestPc::TestPc(std::vector<std::string> facts, std::string_view registry)
    : impl_(std::make_unique<Impl>(*this, facts, registry)) {}
TestPc::~TestPc() = default;

Platform& TestPc::platform() {
  return impl_->platform;
}

const std::string& TestPc::hostFolder() const {
  return impl_->temp.path();
}

void TestPc::file(std::string_view path, std::string_view bytes) {
  const FolderPath parts = parsed(path);
  const FolderDisk::Place place = impl_->makeParent(parts);
  place.parent->setReadOnly(place.name, false);  // an old one, which only root could write over
  writeHostFile(*place.parent, place.name, bytes);
  impl_->disk.forget();  // a kept handle would hold folders that are removed later
}

void TestPc::folder(std::string_view path) {
  impl_->makeFolder(parsed(path));
}

void TestPc::readOnly(std::string_view path) {
  const auto place = impl_->find(path);
  if (!place || place->parent == nullptr) throw std::invalid_argument("no file: " + std::string(path));
  require(place->parent->setReadOnly(place->name, true), parsed(path));
  impl_->pc.files.forget();
  impl_->disk.forget();
}

void TestPc::hide(std::string_view path) {
  impl_->pc.facts().hidden.insert(parsed(path).key());
}

void TestPc::key(std::string_view path) {
  impl_->makeKey(path);
}

void TestPc::value(std::string_view key, std::string_view name, std::string_view text) {
  value(key, name, ValueType::Text, std::string(text) + '\0');
}

void TestPc::value(std::string_view key, std::string_view name, ValueType type, std::string_view data) {
  impl_->makeKey(key).values[name] = {type, std::string(data)};
}

void TestPc::shellFolder(std::string_view name, std::string_view path) {
  value(ShellFolders, name, path);
}

bool TestPc::hasFile(std::string_view path) const {
  const auto place = impl_->find(path);
  return place && place->stat.kind != HostKind::Folder;
}

bool TestPc::hasFolder(std::string_view path) const {
  const auto place = impl_->find(path);
  return place && place->stat.kind == HostKind::Folder;
}

std::string TestPc::bytes(std::string_view path) const {
  const auto place = impl_->find(path);
  if (!place || place->stat.kind != HostKind::File)
    throw std::invalid_argument("no file: " + std::string(path));
  return readHostFile(*place->parent, place->name);
}

bool TestPc::hasKey(std::string_view path) const {
  return impl_->pc.registryTree().find(path) != nullptr;
}

bool TestPc::hasValue(std::string_view key, std::string_view name) const {
  return data(key, name).has_value();
}

std::optional<std::string> TestPc::data(std::string_view key, std::string_view name) const {
  const RegistryNode* node = impl_->pc.registryTree().find(key);
  const RegistryValue* value = node == nullptr ? nullptr : node->values.find(name);
  return value == nullptr ? std::nullopt : std::optional(value->data);
}

std::optional<std::string> TestPc::text(std::string_view key, std::string_view name) const {
  const std::optional<std::string> stored = data(key, name);
  if (!stored) return std::nullopt;
  return std::string(StripAtNull(*stored));
}

std::vector<std::string> TestPc::valueNames(std::string_view key) const {
  std::vector<std::string> names;
  if (const RegistryNode* node = impl_->pc.registryTree().find(key)) {
    for (const auto& [name, value] : node->values) names.push_back(name);
  }
  return names;
}

std::string TestPc::snapshot() const {
  return snapshotOf(impl_->pc);
}

std::string TestPc::diffSince(std::string_view before) const {
  return diffOf(before, snapshot());
}

void TestPc::fail(const std::string& call, ErrorNumber number) {
  impl_->calls.fail(call, static_cast<std::int32_t>(number));
}

void TestPc::fail(const std::string& call, RegistryStatus status) {
  impl_->calls.fail(call, status);
}

void TestPc::clearFaults() {
  impl_->calls.clearFaults();
}

void TestPc::lock(std::string_view path) {
  impl_->pc.facts().locked.insert(parsed(path).key());
}

void TestPc::unlock(std::string_view path) {
  impl_->pc.facts().locked.erase(parsed(path).key());
}

}  // namespace zub
