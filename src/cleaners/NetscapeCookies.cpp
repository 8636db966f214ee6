#include "cleaners/NetscapeCookies.h"

#include <unordered_set>

#include "base/Text.h"
#include "cleaners/LfLine.h"
#include "engine/ShellFolder.h"

namespace zub {
namespace {

constexpr std::string_view ProfileMark = ".slt";

constexpr char Tab = '\t';

// The characters up to and including the first tab; 0 where there is none.
std::size_t throughTab(std::string_view text, std::size_t from = 0) {
  return text.find(Tab, from) + 1;
}

std::string cookieFile(std::string_view folder) {
  return std::string(folder) + "\\Cookies.txt";
}

std::string keepFile(std::string_view folder) {
  return withBackslash(folder) + "ZUBKeepNS6.inf";
}

// Nothing where the text names no folder with a cookie file.
void lookAtProfile(Files& files, const std::string& text, const std::function<void(NetscapeProfile)>& found) {
  NetscapeProfile profile{std::string(lastPathPart(withoutLastPathPart(text))), text};
  try {
    files.open(cookieFile(text), OpenMode::Input);
  } catch (const RuntimeError& failure) {
    if (isMissing(failure)) return;
    profile.readable = false;
  }
  found(std::move(profile));
}

}  // namespace

std::string netscapeRegistryFile(Engine& engine) {
  return shellFolder(engine, "AppData") + "\\Mozilla\\Registry.dat";
}

// The file is taken as texts that end in NULs.
void findNetscapeProfiles(Files& files, const std::string& registryFile,
                          const std::function<void(NetscapeProfile)>& found) {
  onFile(registryFile, [&] {
    FileReader registry(files, registryFile);
    std::string text;
    for (int c = registry.get(); c != -1; c = registry.get()) {
      if (c != 0) {
        text += static_cast<char>(c);
        continue;
      }
      if (contains(text, ProfileMark)) lookAtProfile(files, text, found);
      text.clear();
    }
  });
}

void readNetscapeCookies(Files& files, std::string_view folder, CookieRows& rows) {
  onFile(cookieFile(folder), [&] {
    FileReader file(files, cookieFile(folder));
    std::string line;
    while (readLfLine(file, line)) {
      if (isNetscapeCookie(line)) rows.push_back({std::string(netscapeDomain(line)), line});
    }
  });
}

void tickNetscapeKept(Files& files, std::string_view folder, CookieRows& rows) {
  std::unordered_set<std::string> kept;
  onFile(keepFile(folder), [&] {
    try {
      FileReader file(files, keepFile(folder));
      std::string field;
      while (readKeepField(file, field)) kept.insert(field);
    } catch (const RuntimeError& failure) {
      if (!isMissing(failure)) throw;
    }
  });
  // A row's text ends in its only tab, so domain and name both agree where the joined texts do.
  for (CookieRow& row : rows) {
    if (kept.contains(joined({row.shown, nameAndValue(row.detail).name}))) row.kept = true;
  }
}

void saveNetscapeKeepList(Files& files, std::string_view folder, const CookieRows& rows) {
  std::string lines;
  for (const CookieRow& row : rows) {
    if (row.kept) lines.append(row.shown).append(trim(nameAndValue(row.detail).name)).append(CrLf);
  }
  onFile(keepFile(folder), [&] { files.replace(keepFile(folder), lines); });
}

void saveNetscapeCookies(Files& files, std::string_view folder, const CookieRows& rows) {
  std::string lines;
  for (const CookieRow& row : rows) {
    if (row.kept) lines.append(row.detail).append("\n");
  }
  onFile(cookieFile(folder), [&] { files.replace(cookieFile(folder), lines); });
}

bool isNetscapeCookie(std::string_view line) {
  return !trimLeft(line).starts_with('#') && contains(line, "\t");
}

std::string_view netscapeDomain(std::string_view line) {
  return line.substr(0, throughTab(line));
}

NetscapeCookie nameAndValue(std::string_view line) {
  constexpr std::size_t beforeExpiry = 23;  // counted from the tab behind the domain, that tab being 0
  const std::string_view fields = line.substr(line.find(Tab));
  const std::string_view rest = fields.substr(throughTab(fields, beforeExpiry));
  const std::size_t nameLength = throughTab(rest);
  return {rest.substr(0, nameLength), rest.substr(nameLength)};
}

bool readKeepField(FileReader& file, std::string& field) {
  field.clear();
  int c = file.get();
  if (c == -1) return false;
  for (; c != -1 && c != ',' && c != '\r' && c != '\n'; c = file.get()) field += static_cast<char>(c);
  return true;
}

}  // namespace zub
