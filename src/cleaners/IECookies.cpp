#include "cleaners/IECookies.h"

#include <cstddef>
#include <unordered_map>
#include <unordered_set>

#include "base/Text.h"
#include "cleaners/IECookieIndex.h"
#include "engine/Engine.h"
#include "engine/FileLister.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

std::string keepFile(const std::string& folder) {
  return folder + "ZUBKeep.inf";
}

// The files of a folder that no record of its index has claimed yet.
class UnclaimedFiles {
 public:
  UnclaimedFiles(const CodePage& codePage, const std::vector<std::string>& names)
      : codePage_(codePage), names_(names), claimed_(names.size()) {
    for (std::size_t file = names.size(); file-- > 0;) ofName_[codePage.upper(names[file])].push_back(file);
  }

  // Takes the first file of this name, without regard to case, off the files; false where none is left.
  bool claim(std::string_view name) {
    const auto files = ofName_.find(codePage_.upper(name));
    if (files == ofName_.end() || files->second.empty()) return false;
    claimed_[files->second.back()] = true;
    files->second.pop_back();
    return true;
  }

  // The files that are left, in their order.
  template <class Use>
  void forEach(Use use) const {
    for (std::size_t file = 0; file < names_.size(); ++file) {
      if (!claimed_[file]) use(names_[file]);
    }
  }

 private:
  const CodePage& codePage_;
  const std::vector<std::string>& names_;
  std::unordered_map<std::string, std::vector<std::size_t>> ofName_;  // the last file first
  std::vector<bool> claimed_;
};

void listIndexed(const Platform& pc, const std::string& indexFile, UnclaimedFiles& files, CookieRows& rows) {
  try {
    IECookieIndex index(*pc.files, indexFile);
    IECookie cookie;
    while (index.next(cookie)) {
      if (files.claim(trim(cookie.file))) rows.push_back({cookie.site, cookie.file});
    }
  } catch (const RuntimeError& failure) {
    if (!isMissing(failure)) throw;
  }
}

void tickKept(const Platform& pc, const std::string& keepFile, CookieRows& rows) {
  const auto comparable = [&](std::string_view text) { return pc.codePage->upper(trim(text)); };
  std::unordered_set<std::string> kept;
  try {
    FileReader file(*pc.files, keepFile);
    std::string line;
    while (file.line(line)) kept.insert(comparable(line));
  } catch (const RuntimeError& failure) {
    if (!isMissing(failure)) throw;
  }
  for (CookieRow& row : rows) row.kept = kept.contains(comparable(row.shown));
}

}  // namespace

std::string cookiesFolder(Engine& engine) {
  return shellFolder(engine, "Cookies") + "\\";
}

std::string cookieIndexFile(const std::string& folder) {
  return folder + "index.dat";
}

void readIECookies(const Platform& pc, const std::string& folder, CookieRows& rows) {
  FileLister lister(pc, "*.txt", FileLister::Hidden::Skip);
  onFile(folder, [&] { lister.path(folder); });
  UnclaimedFiles unclaimed(*pc.codePage, lister.names());
  const std::string indexFile = cookieIndexFile(folder);
  onFile(indexFile, [&] { listIndexed(pc, indexFile, unclaimed, rows); });
  unclaimed.forEach([&](const std::string& name) { rows.push_back({name, name}); });
  onFile(keepFile(folder), [&] { tickKept(pc, keepFile(folder), rows); });
}

void saveIEKeepList(const Platform& pc, const std::string& folder, const CookieRows& rows) {
  std::string lines;
  for (const CookieRow& row : rows) {
    if (row.kept) lines.append(row.shown).append(CrLf);
  }
  onFile(keepFile(folder), [&] { pc.files->replace(keepFile(folder), lines); });
}

}  // namespace zub
