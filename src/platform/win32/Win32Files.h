// The PC's own files.
#pragma once

#include "platform/Files.h"

namespace zub {

class Win32Files : public Files {
 public:
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
};

}  // namespace zub
