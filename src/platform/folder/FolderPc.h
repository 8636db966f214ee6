// A PC kept in a folder: drives as directories, the registry, the facts and the tasks as texts.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/DriveFolders.h"
#include "platform/folder/FolderClock.h"
#include "platform/folder/FolderDisk.h"
#include "platform/folder/FolderFiles.h"
#include "platform/folder/FolderRegistry.h"
#include "platform/folder/FolderServices.h"
#include "platform/folder/FolderTasks.h"
#include "platform/folder/PcFacts.h"
#include "platform/folder/RegistryTree.h"
#include "platform/host/HostDir.h"
#include "platform/host/WatchedDir.h"

namespace zub {

class FolderPc {
 public:
  FolderPc(const FolderPc&) = delete;
  FolderPc& operator=(const FolderPc&) = delete;

  static constexpr const char* RegistryName = "registry.reg";
  // What others wrote there, as it was before the program first saved the registry.
  static constexpr const char* OriginalName = "registry.reg.before";

  // The folder at a path of the host, in UTF-8. PcError, with nothing touched, where it is no PC or one of its
  // texts is damaged. `commandLine` is what the program was started with on that PC.
  // `user` goes before the one that the facts tell.
  explicit FolderPc(const std::string& folder, std::string commandLine = {},
                    DamagedTasks damaged = DamagedTasks::Refused, const std::string& user = {});

  // All services; the event loop and the message box are the caller's, and outlive the platform.
  Platform platform(EventLoop& events, Messages& messages);

  // Makes what has changed in registry and facts lasting. Each text is tried; PcError names all that could not be
  // saved, a text of tasks that failed earlier too. Where it fails the old text stands, and a later save tries again.
  void save();

  // What failed on the drives so far and that nobody may have told.
  const HostFailures& failures() const { return failures_; }

  // The content, past all services.
  RegistryTree& registryTree() { return tree_; }
  PcFacts& facts() { return facts_; }
  HostDir& root() { return *root_; }
  DriveFolders& driveFolders() { return driveFolders_; }

 private:
  using Marks = std::array<std::size_t, 2>;
  // As they stood when they were read, once and together.
  struct Texts {
    std::optional<std::string> registry;
    std::optional<std::string> facts;
    Marks marks() const;  // one for each text: differs, as good as surely, when the text does
  };
  struct Opened {
    std::unique_ptr<HostDir> root;
    Texts texts;
  };
  FolderPc(Opened opened, const std::string& folder, std::string commandLine, DamagedTasks damaged,
           const std::string& user);
  static Opened open(const std::string& folder);
  static Texts readTexts(HostDir& root);
  bool isOutdated();
  void saveRegistry();

  // Below the services that use them, so made before them.
  std::unique_ptr<HostDir> root_;
  Marks textsRead_;  // the marks of the texts as they were read
  bool isExport_;    // the registry was written by others
  RegistryTree tree_;
  PcFacts facts_;
  FolderRegistry::Rules rules_;
  HostFailures failures_;
  std::unique_ptr<HostDir> watched_;
  DriveFolders driveFolders_;
  FolderDisk disk_;

 public:
  CodePage1252 codePage;
  FolderRegistry registry;
  FolderFiles files;
  FolderDrives drives;
  FolderSystemFolders folders;
  FolderRestart restart;
  FolderShell shell;
  FolderClock clock;
  FolderProcess process;
  FolderTray tray;
  FolderTasks tasks;
};

}  // namespace zub
