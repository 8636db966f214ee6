#include "cleaners/IECookies.h"

#include <unordered_set>

#include "base/Text.h"
#include "cleaners/IECookieIndex.h"
#include "cleaners/UnclaimedFiles.h"
#include "engine/Engine.h"
#include "engine/FileLister.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

std::string keepFile(const std::string& folder) {
  return folder + "ZUBKeep.inf";
}

void listIndexed(const Platform& pc, const std::string& indexFile, UnclaimedFiles& files, CookieRows& rows) {
  try {
    IECookieIndex index(pc.files, indexFile);
    IECookie cookie;
    while (index.next(cookie)) {
      if (files.claim(trim(cookie.file))) rows.push_back({cookie.site, cookie.file});
    }
  } catch (const RuntimeError& failure) {
    if (!isMissing(failure)) throw;
  }
}

void tickKept(const Platform& pc, const std::string& keepFile, CookieRows& rows) {
  const auto comparable = [&](std::string_view text) { return pc.codePage.upper(trim(text)); };
  std::unordered_set<std::string> kept;
  try {
    FileReader file(pc.files, keepFile);
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
  UnclaimedFiles unclaimed(pc.codePage, lister.names());
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
  onFile(keepFile(folder), [&] { pc.files.replace(keepFile(folder), lines); });
}

}  // namespace zub
