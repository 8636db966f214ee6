#include "platform/folder/FolderPc.h"

#include <functional>

#include "platform/folder/HostFailure.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"

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

// Differs, as good as surely, when one of the texts does.
std::size_t markOfTexts(HostDir& root) {
  std::size_t mark = 0;
  for (const char* name : {FolderPc::RegistryName, PcFacts::FileName}) {
    mark = mark * 31 + std::hash<std::string>{}(readHostText(root, name).value_or(""));
  }
  return mark;
}

RegistryTree readRegistry(HostDir& root, const std::string& folder) {
  const auto text = readHostText(root, FolderPc::RegistryName);
  HostStat facts;
  if (!text && root.stat(PcFacts::FileName, facts) != HostError::None) {
    throw PcError(folder, 0, "is no PC: it holds neither pc.txt nor registry.reg");
  }
  return text ? readRegistryText(*text, FolderPc::RegistryName) : RegistryTree{};
}

void make(HostDir& folder, const std::string& name, std::unique_ptr<HostDir>& made) {
  HostError error = folder.makeDir(name);
  if (error == HostError::None) error = folder.openDir(name, made);
  if (error != HostError::None) {
    throw PcError(name, 0, "cannot be made: " + std::string(descriptionOf(errorNumberOf(error))));
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

FolderPc::FolderPc(const std::string& folder, std::string commandLine, DamagedTasks damaged)
    : root_(openRoot(folder)),
      textsRead_(markOfTexts(*root_)),
      tree_(readRegistry(*root_, folder)),
      facts_(readHostText(*root_, PcFacts::FileName).value_or("")),
      rules_{!facts_.nt, facts_.noRights},
      disk_(*root_, facts_),
      registry(tree_, rules_),
      files(disk_, facts_),
      drives(disk_, facts_),
      folders(facts_),
      restart(files, facts_),
      shell(files, drives),
      process(*root_, std::move(commandLine), [this] { return markOfTexts(*root_) != textsRead_; }),
      tasks(*root_, damaged) {}

Platform FolderPc::platform(EventLoop& events, Messages& messages) {
  return {codePage, registry, files,  drives,   folders, restart, shell,
          clock,    process,  events, messages, tray,    tasks};
}

void FolderPc::save() {
  if (registry.changed()) {
    replaceHostText(*root_, RegistryName, writeRegistryText(tree_));
    registry.changed(false);
  }
  if (facts_.changed()) {
    replaceHostText(*root_, PcFacts::FileName, facts_.text());
    facts_.saved();
  }
}

void createPc(const std::string& folder) {
  const auto root = openNew(folder);
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  if (root->list(listing) != HostError::None || listing->next(entry)) {
    throw PcError(folder, 0, "is not empty");
  }
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
