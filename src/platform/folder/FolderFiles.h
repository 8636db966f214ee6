// Files and folders of a PC in a folder.
#pragma once

#include <optional>

#include "platform/Files.h"
#include "platform/folder/FolderDisk.h"
#include "platform/folder/PcFacts.h"

namespace zub {

class FolderFiles : public Files {
 public:
  // Both outlive the files.
  FolderFiles(FolderDisk& disk, PcFacts& facts) : disk_(disk), facts_(facts) {}

  std::unique_ptr<FileSearch> find(std::string_view path) override;
  std::uint32_t attributes(std::string_view path) override;
  void resetAttributes(std::string_view path) override;
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override;
  std::int64_t openedLength(std::string_view path, ReadOnlyBit bit) override;
  std::int64_t removable(std::string_view path, Removal how) override;
  void remove(std::string_view path) override;
  void replace(std::string_view path, std::string_view bytes) override;
  bool fileExists(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void createFolder(std::string_view path) override;
  void deleteFolder(std::string_view path) override;
  std::string shortPath(std::string_view path) override;

  // Forgets what is remembered of the disk. For those who change it in another way.
  void forget();

 private:
  using Place = FolderDisk::Place;

  // The one entry that a path without a wildcard names.
  std::unique_ptr<FileSearch> findEntry(std::string_view path);
  FolderPath parse(std::string_view path) const;
  // Where the path leads. It becomes the path as the disk has it, by which the facts know a file.
  Place placeOf(FolderPath& path);
  // The same for a file: a path that ends in a backslash leads to none.
  Place filePlaceOf(FolderPath& path);
  // Nothing where it is known that the path leads nowhere; throws where it cannot be looked at.
  std::optional<Place> look(std::string_view path);
  // Removing a file asks three things of it, one after the other. What resetting its attributes has seen is
  // good for the two calls that follow on the same path.
  const Place& lookOn(std::string_view path);
  void checkWritable(const FolderPath& path, const Place& place, ReadOnlyBit bit = ReadOnlyBit::Counts) const;
  bool isLocked(const FolderPath& path) const;
  void checkDrive(char drive) const;
  // Removes all that can go; why something stays, first of all.
  HostError removeTree(HostDir& parent, const std::string& name, FolderPath& path);
  HostError removeContent(HostDir& parent, const std::string& name, FolderPath& path, bool& removedSome);
  HostError removeEntry(HostDir& folder, const HostEntry& entry, FolderPath& path);

  FolderDisk& disk_;
  PcFacts& facts_;
  std::string seenPath_;
  FolderPath seenParts_;
  Place seen_;
};

}  // namespace zub
