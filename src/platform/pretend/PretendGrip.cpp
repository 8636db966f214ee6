#include "platform/pretend/PretendGrip.h"

#include "base/RuntimeError.h"

namespace zub {

const PretendFiles::Spot& PretendFiles::Grip::spot() {
  if (seen_ != files_.changes_) {
    spot_ = files_.locate(path_);
    seen_ = files_.changes_;
  }
  return spot_;
}

FileGrip& PretendFiles::Grip::beneath() {
  if (!spot().asksBeneath() || !beneath_) throw RuntimeError(ErrorNumber::FileNotFound);
  return *beneath_;
}

void PretendFiles::Grip::resetAttributes() {
  if (spot().own != nullptr) {
    spot().own->attributes = attribute::Normal;
    return;
  }
  const std::uint32_t kept = attribute::Normal | attribute::Archive | attribute::Directory | attribute::Link;
  const std::uint32_t bits = beneath().attributes();
  if (bits == attribute::Invalid) throw RuntimeError(ErrorNumber::FileNotFound);
  if ((bits & ~kept) != 0) files_.changed(spot()).reset.insert(spot_.name);
}

std::int64_t PretendFiles::Grip::length(ReadOnlyBit bit) {
  if (spot().own != nullptr)
    return removable(bit == ReadOnlyBit::Counts ? Removal::File : Removal::EvenReadOnly);
  return beneath().length(spot().isReset() ? ReadOnlyBit::Ignored : bit);
}

std::int64_t PretendFiles::Grip::removable(Removal how) {
  const Own* own = spot().own;
  if (own == nullptr)
    return beneath().removable(spot().isReset() && how == Removal::File ? Removal::EvenReadOnly : how);
  const bool isFolder = !own->content;
  const bool isReadOnly = (own->attributes & attribute::ReadOnly) != 0;
  if (isFolder != (how == Removal::EmptyFolder) || (isReadOnly && how == Removal::File))
    throw RuntimeError(ErrorNumber::PathFileAccess);
  if (own->overBeneath && beneath_) beneath_->removable(Removal::EvenReadOnly);
  return isFolder ? 0 : own->content->length();
}

void PretendFiles::Grip::take(Removal how) {
  const std::int64_t length = removable(how);
  files_.takeOut(spot(), how == Removal::EmptyFolder, length);
}

std::unique_ptr<FileGrip> PretendFiles::grip(std::string_view path) {
  return std::make_unique<Grip>(gripOf(path));
}

PretendFiles::Grip PretendFiles::gripOf(std::string_view path) {
  Spot spot = locate(path);
  if (spot.own == nullptr && !spot.asksBeneath()) throw RuntimeError(ErrorNumber::FileNotFound);
  const bool isBeneath = spot.own == nullptr || spot.own->overBeneath;
  return {*this, path, std::move(spot), isBeneath ? beneath_.grip(path) : nullptr};
}

}  // namespace zub
