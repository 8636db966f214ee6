#include "platform/folder/FolderNames.h"

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

std::optional<std::string> FolderNames::find(std::string_view name) {
  const std::string wanted = folded(name);
  const auto place = names_.lower_bound({wanted, std::string()});
  if (place != names_.end() && place->first == wanted) return place->second;
  if (name.find('~') == std::string_view::npos) return std::nullopt;
  findShortNames();
  const auto found = byShort_.find(wanted);
  return found == byShort_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string> FolderNames::shortName(const std::string& hostName) {
  findShortNames();
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

void FolderNames::findShortNames() {
  if (!shorts_.empty()) return;
  const Clock::time_point begin = Clock::now();
  std::vector<std::string> names;
  for (const auto& [key, hostName] : names_) names.push_back(toldNameFromUtf8(hostName));
  const std::vector<std::string> shorts = shortNames(names);
  std::size_t at = 0;
  for (const auto& [key, hostName] : names_) {
    byShort_.emplace(folded(shorts[at]), hostName);
    shorts_.emplace(hostName, shorts[at]);
    ++at;
  }
  holdFrom(begin);
}

}  // namespace zub
