#include "platform/folder/FolderPc.h"

#include <functional>

#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryParts.h"
#include "platform/folder/RegistryText.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

std::unique_ptr<HostDir> openRoot(const std::string& folder) {
  auto root = openHostDir(folder);
  if (!root) throw PcError(folder, 0, "is no folder that can be opened");
  return root;
}

RegistryTree readRegistry(const std::optional<std::string>& text) {
  RegistryTree tree;
  if (!text) return tree;
  tree = readRegistryText(*text, FolderPc::RegistryName);
  if (!canBeWritten(tree, MostTextBytes)) {
    throw PcError(FolderPc::RegistryName, 0, "is too large: it could not be saved");
  }
  return tree;
}

// Those of the registry, once each hive shows what it does.
FolderRegistry::Rules rulesFor(RegistryTree& tree, PcFacts& facts, const std::string& user) {
  if (!user.empty()) facts.user = ansiFromUtf8(user);
  showParts(tree, facts.user);
  FolderRegistry::Rules rules{facts.family, {}};
  for (const std::string& path : facts.noRights) rules.noRights.push_back(shownPath(tree, path));
  return rules;
}

}  // namespace

FolderPc::Texts FolderPc::readTexts(HostDir& root) {
  return {readHostText(root, RegistryName), readHostText(root, PcFacts::FileName)};
}

FolderPc::Marks FolderPc::Texts::marks() const {
  const std::hash<std::string_view> hash;
  return {hash(registry.value_or("")), hash(facts.value_or(""))};
}

FolderPc::FolderPc(const std::string& folder, std::string commandLine, DamagedTasks damaged,
                   const std::string& user)
    : FolderPc(open(folder), folder, std::move(commandLine), damaged, user) {}

FolderPc::FolderPc(Opened opened, const std::string& folder, std::string commandLine, DamagedTasks damaged,
                   const std::string& user)
    : root_(std::move(opened.root)),
      textsRead_(opened.texts.marks()),
      isExport_(opened.texts.registry && !isOwnRegistryText(*opened.texts.registry)),
      tree_(readRegistry(opened.texts.registry)),
      facts_(opened.texts.facts.value_or("")),
      rules_(rulesFor(tree_, facts_, user)),
      watched_(watched(*root_, failures_)),
      driveFolders_(*watched_, folder, facts_, failures_),
      disk_(driveFolders_, facts_, failures_),
      registry(tree_, rules_),
      files(disk_, facts_),
      drives(disk_, facts_),
      folders(facts_),
      restart(files, facts_),
      shell(files, drives, facts_),
      process(*root_, std::move(commandLine), [this] { return isOutdated(); }),
      tasks(*root_, damaged) {}

FolderPc::Opened FolderPc::open(const std::string& folder) {
  auto root = openRoot(folder);
  Texts texts = readTexts(*root);
  if (!texts.registry && !texts.facts) {
    throw PcError(folder, 0, "is no PC: it holds neither pc.txt nor registry.reg");
  }
  return {std::move(root), std::move(texts)};
}

// Asked once the folder is taken: nobody else saves meanwhile.
bool FolderPc::isOutdated() {
  for (const char* name : {RegistryName, PcFacts::FileName, FolderTasks::FileName}) {
    removeLeftBeside(*root_, name);
  }
  return readTexts(*root_).marks() != textsRead_;
}

Platform FolderPc::platform(EventLoop& events, Messages& messages) {
  return {&codePage, &registry, &files,  &drives,   &folders, &restart, &shell,
          &clock,    &process,  &events, &messages, &tray,    &tasks};
}

// An export of others is kept: what changed can be told against it, and taken back.
void FolderPc::saveRegistry() {
  if (isExport_) replaceHostText(*root_, OriginalName, readHostText(*root_, RegistryName).value_or(""));
  isExport_ = false;
  replaceHostText(*root_, RegistryName, writeRegistryText(tree_));
  registry.changed(false);
}

void FolderPc::save() {
  std::string failures;
  const auto tried = [&](const auto& saving) {
    try {
      saving();
    } catch (const PcError& error) {
      failures += (failures.empty() ? "" : "; ") + std::string(error.what());
    }
  };
  if (registry.changed()) {
    tried([&] { saveRegistry(); });
  }
  if (facts_.changed()) {
    tried([&] {
      replaceHostText(*root_, PcFacts::FileName, facts_.text());
      facts_.saved();
    });
  }
  tried([&] { tasks.throwUnsaved(); });
  if (!failures.empty()) throw PcError(failures);
}

}  // namespace zub
