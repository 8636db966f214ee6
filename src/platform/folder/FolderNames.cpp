#include "platform/folder/FolderNames.h"

#include <utility>
#include <vector>

#include "platform/folder/CodePage1252.h"
#include "platform/folder/ShortName.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::chrono::milliseconds Moment{200};
constexpr int Listings = 10;  // a folder is listed for a tenth of the time at most

}  // namespace

FolderNames::FolderNames(HostDir& folder) {
  const Clock::time_point begin = Clock::now();
  std::unique_ptr<HostList> listing;
  check(folder.list(listing));
  HostEntry entry;
  while (listing->next(entry)) names_.emplace(folded(toldNameFromUtf8(entry.name)), entry.name);
  check(listing->failure());
  holdFrom(begin);
}

void FolderNames::holdFrom(Clock::time_point begin) {
  const Clock::time_point now = Clock::now();
  end_ = std::max(end_, now + std::max<Clock::duration>(Moment, (now - begin) * Listings));
}

bool FolderNames::has(const std::string& hostName) const {
  return names_.contains({folded(toldNameFromUtf8(hostName)), hostName});
}

std::optional<std::string> FolderNames::find(HostDir& folder, std::string_view name) {
  const std::string wanted = folded(name);
  const auto place = names_.lower_bound({wanted, std::string()});
  if (place != names_.end() && place->first == wanted) return place->second;
  if (!isMadeShortName(name)) return std::nullopt;
  askShortNames(folder);
  const auto found = byShort_.find(wanted);
  return found == byShort_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string> FolderNames::shortName(HostDir& folder, const std::string& hostName) {
  askShortNames(folder);
  const auto found = shorts_.find(hostName);
  return found == shorts_.end() ? std::nullopt : std::optional(found->second);
}

void FolderNames::drop(const std::string& hostName) {
  names_.erase({folded(toldNameFromUtf8(hostName)), hostName});
  const auto found = shorts_.find(hostName);
  if (found == shorts_.end()) return;
  byShort_.erase(folded(found->second));
  shorts_.erase(found);
}

void FolderNames::askShortNames(HostDir& folder) {
  if (std::exchange(shortsAsked_, true)) return;
  const Clock::time_point begin = Clock::now();
  std::vector<ShortName> names;
  check(folder.shortNames(names));
  for (const ShortName& entry : names) {
    const std::string told = toldNameFromUtf8(entry.shortName);
    byShort_.emplace(folded(told), entry.name);
    shorts_.emplace(entry.name, told);
  }
  holdFrom(begin);
}

}  // namespace zub
