#include "platform/folder/FolderPc.h"

#include <functional>

#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::string_view NewFacts =
    "# The facts of this PC; docs/pc-folder.md tells what can stand here.\n"
    "family = 9x\n"
    "windows = C:\\WINDOWS\n"
    "temp = C:\\WINDOWS\\TEMP\n"
    "program = C:\\Program Files\\Zubrane\n"
    "current = C:\\\n"
    "drive C = fixed\n";

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

void make(HostDir& folder, const std::string& name, std::unique_ptr<HostDir>& made) {
  HostError error = folder.makeDir(name);
  if (error == HostError::None) error = folder.openDir(name, made);
  if (error != HostError::None) {
    throw PcError(name, 0, "cannot be made: " + reasonOf(error));
  }
}

// The folder, made where it is missing.
std::unique_ptr<HostDir> openNew(std::string folder) {
  while (folder.size() > 1 && (folder.ends_with('/') || folder.ends_with('\\'))) folder.pop_back();
  if (auto present = openHostDir(folder)) return present;
  const auto separator = folder.find_last_of("/\\");
  const bool hasParent = separator != std::string::npos;
  const auto parent = openRoot(hasParent ? folder.substr(0, separator + 1) : ".");
  std::unique_ptr<HostDir> made;
  make(*parent, hasParent ? folder.substr(separator + 1) : folder, made);
  return made;
}

}  // namespace

FolderPc::Texts FolderPc::readTexts(HostDir& root) {
  return {readHostText(root, RegistryName), readHostText(root, PcFacts::FileName)};
}

std::size_t FolderPc::Texts::mark() const {
  const std::hash<std::string_view> hash;
  return hash(registry.value_or("")) * 31 + hash(facts.value_or(""));
}

FolderPc::FolderPc(const std::string& folder, std::string commandLine, DamagedTasks damaged)
    : FolderPc(open(folder), std::move(commandLine), damaged) {}

FolderPc::FolderPc(Opened opened, std::string commandLine, DamagedTasks damaged)
    : root_(std::move(opened.root)),
      textsRead_(opened.texts.mark()),
      tree_(readRegistry(opened.texts.registry)),
      facts_(opened.texts.facts.value_or("")),
      rules_{facts_.family, facts_.noRights},
      watched_(watched(*root_, failures_)),
      disk_(*watched_, facts_),
      registry(tree_, rules_),
      files(disk_, facts_),
      drives(disk_, facts_),
      folders(facts_),
      restart(files, facts_),
      shell(files, drives, *facts_.family),
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
  return readTexts(*root_).mark() != textsRead_;
}

Platform FolderPc::platform(EventLoop& events, Messages& messages) {
  return {codePage, registry, files,  drives,   folders, restart, shell,
          clock,    process,  events, messages, tray,    tasks};
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
    tried([&] {
      replaceHostText(*root_, RegistryName, writeRegistryText(tree_));
      registry.changed(false);
    });
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

void createPc(const std::string& folder) {
  const auto root = openNew(folder);
  if (root->take() == HostError::InUse) throw PcError(folder, 0, "is in use by another program: try again");
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  HostError error = root->list(listing);
  if (error == HostError::None && listing->next(entry)) throw PcError(folder, 0, "is not empty");
  if (error == HostError::None) error = listing->failure();
  if (error != HostError::None) throw PcError(folder, 0, "cannot be read: " + reasonOf(error));
  std::unique_ptr<HostDir> drive;
  std::unique_ptr<HostDir> parent;
  std::unique_ptr<HostDir> child;
  make(*root, "C", drive);
  make(*drive, "WINDOWS", parent);
  make(*parent, "TEMP", child);
  make(*drive, "Program Files", parent);
  make(*parent, "Zubrane", child);
  RegistryTree empty;
  replaceHostText(*root, FolderPc::RegistryName, writeRegistryText(empty));
  replaceHostText(*root, PcFacts::FileName, NewFacts);
}

}  // namespace zub
