// The steps of a removal that only pretends.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "platform/pretend/PretendFiles.h"

namespace zub {

// By the grip of what lies beneath. Nothing goes there, so the path leads where it led.
class PretendFiles::Grip : public FileGrip {
 public:
  // `beneath` is null where nothing is there.
  Grip(PretendFiles& files, std::string_view path, Spot spot, std::unique_ptr<FileGrip> beneath)
      : files_(files),
        path_(path),
        spot_(std::move(spot)),
        seen_(files.changes_),
        beneath_(std::move(beneath)) {}

  std::uint32_t attributes() override { return files_.attributes(path_); }
  void resetAttributes() override;
  std::int64_t length(ReadOnlyBit bit) override;
  std::unique_ptr<FileChannel> open() override { return files_.open(path_, OpenMode::Binary); }
  std::int64_t removable(Removal how) override;
  void remove() override { take(Removal::File); }
  void take(Removal how);

 private:
  const Spot& spot();
  FileGrip& beneath();

  PretendFiles& files_;
  std::string path_;
  Spot spot_;
  unsigned seen_;  // the changes that spot_ knows of
  std::unique_ptr<FileGrip> beneath_;
};

}  // namespace zub
