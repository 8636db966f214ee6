#include "engine/Delete.h"

#include <algorithm>
#include <array>

#include "base/Numbers.h"
#include "base/Text.h"
#include "engine/Engine.h"

namespace zub {
namespace {

constexpr std::size_t BlockSize = 1024;

}  // namespace

Delete::Delete(Engine& engine) : DelFile(engine.pc, AllFiles, FileLister::Hidden::Include), engine_(engine) {}

bool Delete::DeleteFolder(std::string_view strPath, std::string_view strPattern) {
  engine_.animated->RemoveEntries(removing::Folder);
  if (!FolderPresent(strPath)) return true;
  DeleteSubDir(strPath, strPattern);
  engine_.animated->RemoveEntries(removing::Files);
  for (std::size_t file = 0; file < DelFileList.size(); ++file) {
    engine_.pc.events->DoEvents();
    if (file < DelFileList.size()) DeleteFile(DelFileList[file], 0);
  }
  engine_.animated->RemoveEntries(removing::Folder);
  if (strPattern == AllFiles) {
    for (std::size_t left = DelDirList.size(); left > 0; left = std::min(left - 1, DelDirList.size())) {
      engine_.pc.events->DoEvents();
      if (left > DelDirList.size()) continue;
      const std::string folder = DelDirList[left - 1];
      engine_.clean.AddItem(joined({"\tDeleting Folder ", lastPathPart(folder)}));
      RemoveFolderTree(folder);
    }
  }
  return false;
}

void Delete::DeleteSubDir(std::string_view strPath, std::string_view strPattern) {
  const auto point = [this](MousePointer pointer) {
    mousePointer = pointer;
    engine_.animated->state.form.mousePointer = pointer;  // the window that is seen meanwhile
  };
  point(MousePointer::Hourglass);
  ListFilesFolder(strPath, strPattern);
  point(MousePointer::Default);
}

void Delete::ListFilesFolder(std::string_view Path, std::string_view SearchStr) {
  DelDirList.clear();
  DelFileList.clear();
  WalkFolder(withBackslash(Path), SearchStr);
}

// Depth first, the folders of a level before its files, by a list of folders to come: no tree is too deep.
void Delete::WalkFolder(const std::string& start, std::string_view strPattern) {
  const auto walk = std::make_shared<WalkedFolders>(start);
  std::vector<std::size_t> toCome{WalkedFolders::Start};
  std::vector<std::size_t> children;
  while (!toCome.empty()) {
    const std::size_t folder = toCome.back();
    toCome.pop_back();
    children.clear();
    try {
      listFolder(walk, folder, strPattern, children);
    } catch (const RuntimeError& failure) {
      countUnread(walk->textOf(folder), failure);
    }
    toCome.insert(toCome.end(), children.rbegin(), children.rend());
  }
}

// Folders are found whatever the pattern is. A link to a folder goes where folders go: with all files only.
void Delete::listFolder(const Walk& walk, std::size_t folder, std::string_view strPattern,
                        std::vector<std::size_t>& children) {
  const std::string path = walk->textOf(folder);
  const bool everything = strPattern == AllFiles;  // one listing tells folders and files
  std::vector<std::string> all;                    // a folder as the empty text
  FoundFile found;
  if (const auto search = engine_.pc.files->find(path + "*")) {
    while (search->next(found)) {
      const bool isDir = isFolder(found.attributes);
      if (everything) all.push_back(isDir ? std::string() : found.name);
      if (!isDir) continue;
      children.push_back(walk->add(folder, found.name));
      DelDirList.add(walk, folder, found.name);
    }
  }
  for (const std::string& name : all) {
    engine_.pc.events->DoEvents();
    if (!name.empty()) DelFileList.add(walk, folder, name);
  }
  if (everything) return;
  if (const auto search = engine_.pc.files->find(joined({path, strPattern}))) {
    while (search->next(found)) {
      engine_.pc.events->DoEvents();
      if (!isFolder(found.attributes) && !isFolderLink(found.attributes))
        DelFileList.add(walk, folder, found.name);
    }
  }
}

// What is in a folder that cannot be listed stays.
void Delete::countUnread(std::string_view folder, const RuntimeError& failure) {
  const bool link = isFolderLink(engine_.pc.files->attributes(folder));
  const std::string why = link ? "a link, which is not entered" : failure.description();
  engine_.leftBehind.push_back({std::string(folder), why, true});
}

void Delete::DeleteFilesInFolder(std::string_view strPath, std::string_view strPattern) {
  try {
    DelFile.pattern(strPattern);
    DelFile.path(strPath);
    const std::string folder = withBackslash(strPath);
    const std::vector<std::string> names = DelFile.names();
    for (const std::string& name : names) {
      engine_.pc.events->DoEvents();
      DeleteFile(folder + name, 0);
    }
  } catch (const RuntimeError& failure) {
    engine_.clean.AddItem(failure.description());
    if (!nothingThere(failure.number())) countUnread(strPath, failure);
  }
}

void Delete::MakeDir(std::string_view strPath) {
  try {
    if (!FolderPresent(strPath)) engine_.pc.files->createFolder(strPath);
  } catch (const RuntimeError&) {
  }
}

void Delete::RemoveFolderTree(std::string_view strPath) {
  try {
    if (FolderPresent(strPath)) engine_.pc.files->deleteFolder(strPath);
  } catch (const RuntimeError& failure) {
    engine_.leftBehind.push_back({std::string(strPath), failure.description()});
  }
}

bool Delete::FolderPresent(std::string_view strPath) {
  return engine_.pc.files->folderExists(strPath);
}

bool Delete::DeleteFile(std::string_view strFileName, int nSpecial) {
  Files& files = *engine_.pc.files;
  engine_.animated->RemoveEntries(removing::Files);
  try {
    // First of all, so that a missing file fails before anything could create it.
    const auto file = files.grip(strFileName);
    file->resetAttributes();
    const std::int64_t length = file->length();
    const int bleach = engine_.options.chkBleach.Value();
    if (bleach == 0) engine_.clean.AddItem(joined({"\tDeleting file ", lastPathPart(strFileName)}));
    if (bleach == 1) ZUBShredder(*file, strFileName, leadingNumber(engine_.options.cmbShredder.Text()));
    file->remove();
    engine_.TotalBytes = checkedAdd(engine_.TotalBytes, length);
    return false;
  } catch (const RuntimeError& failure) {
    reportFailure(strFileName, nSpecial, failure);
    return true;
  }
}

void Delete::reportFailure(std::string_view strFileName, int nSpecial, const RuntimeError& failure) {
  const ErrorNumber error = failure.number();
  engine_.animated->state.Timer.Enabled = false;
  if (error == ErrorNumber::FileNotFound) return;  // leaves the animation standing

  if (error != ErrorNumber::Overflow) {  // the sum overflowed: the file itself is gone
    engine_.leftBehind.push_back({std::string(strFileName), failure.description()});
  }
  const bool denied = error == ErrorNumber::PermissionDenied;
  const bool accessError = error == ErrorNumber::PathFileAccess;
  UserFunctions& user = engine_.userFunctions;
  if ((nSpecial == 1 && denied) || accessError) {
    removeAtRestart(strFileName);
    constexpr std::string_view locked = " you are trying to delete is locked.";
    constexpr std::string_view restart = "You need to restart your computer to delete this file";
    user.ShowMessage(joined({"The file ", strFileName, locked, CrLf, restart}), 0, "Delete locked file",
                     true);
    engine_.clean.AddItem(
        joined({"\tDelete locked file: ", "The file ", strFileName, locked, restart, CrLf}));
  }
  const std::string_view outcome =
      denied || accessError ? " is locked or is on a read only drive/network" : " cannot be deleted";
  user.ShowMessage(joined({"The file ", strFileName, CrLf, outcome}), 0, failure.description(), true);
  engine_.clean.AddItem(joined({"\t", failure.description(), " The file ", strFileName, outcome, CrLf}));
  engine_.animated->state.Timer.Enabled = true;
}

void Delete::removeAtRestart(std::string_view strFileName) {
  Restart& restart = *engine_.pc.restart;
  if (engine_.userFunctions.IsWinNT()) {
    restart.deleteAtRestart(strFileName);
  } else {
    // One key for every file: only the file scheduled last stands in the profile.
    const std::string path = engine_.pc.files->shortPath(strFileName);
    if (!path.empty()) restart.writeProfile("rename", "nul", path, "wininit.ini");
  }
}

void Delete::ZUBShredder(FileGrip& grip, std::string_view szname, int nTimes) {
  static constexpr std::array<char, BlockSize> zeros{};
  try {
    const auto file = grip.open();
    const std::int64_t blocks = divideRoundHalfEven(file->length(), BlockSize);
    insideFile_ = true;
    engine_.clean.AddItem(joined({"\tShredding file ", lastPathPart(szname)}));
    for (int pass = 1; pass <= nTimes; ++pass) {
      file->seek(0);
      for (std::int64_t block = 1; block <= blocks - 1; ++block) {
        file->write({zeros.data(), zeros.size()});
        engine_.pc.events->DoEvents();
      }
      if (blocks > 1) file->sync();
    }
    file->close();
  } catch (const RuntimeError&) {
    // The removal that follows decides what is told.
  }
  insideFile_ = false;
}

}  // namespace zub
