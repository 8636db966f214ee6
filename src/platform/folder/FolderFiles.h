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
  std::unique_ptr<FileGrip> grip(std::string_view path) override;
  std::unique_ptr<FileChannel> open(std::string_view path, OpenMode mode) override;
  void replace(std::string_view path, std::string_view bytes) override;
  bool fileExists(std::string_view path) override;
  bool folderExists(std::string_view path) override;
  void createFolder(std::string_view path) override;
  void deleteFolder(std::string_view path) override;
  std::string shortPath(std::string_view path) override;

  // Forgets what is remembered of the disk. For those who change it in another way.
  void forget() { disk_.forget(); }

 private:
  using Place = FolderDisk::Place;
  // Where a path leads. The path is as the disk has it where the facts tell of any; else its drive alone counts.
  struct Found {
    Place place;
    FolderPath path;
  };
  class Grip;

  // The one entry that a path without a wildcard names.
  std::unique_ptr<FileSearch> findEntry(std::string_view path);
  FolderPath parse(std::string_view path) const;
  Found locate(std::string_view path);
  // The same for a file: a path that ends in a backslash leads to none.
  Found locateFile(std::string_view path);
  // Nothing where it is known that the path leads nowhere; throws where it cannot be looked at.
  std::optional<Place> look(std::string_view path);
  void checkWritable(const Found& found, ReadOnlyBit bit = ReadOnlyBit::Counts) const;
  bool isLocked(const FolderPath& path) const;
  void checkDrive(char drive) const;

  FolderDisk& disk_;
  PcFacts& facts_;
};

}  // namespace zub
