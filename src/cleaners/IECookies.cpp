#include "cleaners/IECookies.h"

#include <map>
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

// The files of a folder that no record of its index has claimed yet, by their names without regard to case.
using UnclaimedFiles = std::multimap<std::string, std::string>;

void listIndexed(const Platform& pc, const std::string& indexFile, UnclaimedFiles& files, CookieRows& rows) {
  try {
    IECookieIndex index(*pc.files, indexFile);
    IECookie cookie;
    while (index.next(cookie)) {
      const std::string name = pc.codePage->upper(trim(cookie.file));
      const auto file = files.lower_bound(name);
      if (file == files.end() || file->first != name) continue;
      files.erase(file);
      rows.push_back({cookie.site, cookie.file});
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
  UnclaimedFiles unclaimed;  // in the lister's order
  for (const std::string& name : lister.names()) unclaimed.emplace(pc.codePage->upper(name), name);
  const std::string indexFile = cookieIndexFile(folder);
  onFile(indexFile, [&] { listIndexed(pc, indexFile, unclaimed, rows); });
  for (const auto& [upper, name] : unclaimed) rows.push_back({name, name});
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
