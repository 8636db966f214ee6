#include "platform/folder/FolderSearch.h"

#include "platform/folder/CodePage1252.h"
#include "platform/host/HostFailure.h"

namespace zub {

std::uint32_t attributesOf(const HostStat& stat, const FolderPath& path, const PcFacts& facts) {
  std::uint32_t bits = stat.kind == HostKind::Folder || stat.toFolder ? attribute::Directory : 0;
  if (stat.kind == HostKind::Link) bits |= attribute::Link;
  if (stat.readOnly) bits |= attribute::ReadOnly;
  if (facts.anyAttributes()) {
    const std::string key = path.key();
    if (facts.hidden.contains(key)) bits |= attribute::Hidden;
    if (facts.system.contains(key)) bits |= attribute::System;
  }
  return bits == 0 ? attribute::Normal : bits;
}

FolderSearch::FolderSearch(std::unique_ptr<HostList> listing, std::string_view pattern,
                           const FolderPath& folder, const PcFacts& facts)
    : listing_(std::move(listing)), pattern_(folded(utf16FromAnsi(pattern))), path_(folder), facts_(facts) {
  path_.parts.emplace_back();
  waiting_ = advance();
}

bool FolderSearch::advance() {
  while (listing_->next(entry_)) {
    if (!pattern_.matchesEverything() && !pattern_.matches(folded(utf16FromUtf8(entry_.name)))) continue;
    path_.parts.back() = toldNameFromUtf8(entry_.name);
    return true;
  }
  check(listing_->failure());
  return false;
}

bool FolderSearch::next(FoundFile& found) {
  if (!waiting_ && !advance()) return false;
  waiting_ = false;
  const bool wanted = !pattern_.matchesEverything() && entry_.stat.kind == HostKind::File;
  if (wanted && !entry_.complete) listing_->complete(entry_);
  found.name = path_.parts.back();
  found.attributes = attributesOf(entry_.stat, path_, facts_);
  found.nFileSizeHigh = static_cast<std::uint32_t>(entry_.stat.size >> 32);
  found.nFileSizeLow = static_cast<std::uint32_t>(entry_.stat.size);
  return true;
}

}  // namespace zub
