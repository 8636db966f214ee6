#include "platform/folder/PcFacts.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/RegistryTree.h"

namespace zub {
namespace {

struct DriveKind {
  std::string_view name;
  DriveType type;
};
constexpr std::array<DriveKind, 6> DriveKinds{{{"unknown", DriveType::Unknown},
                                               {"removable", DriveType::Removable},
                                               {"fixed", DriveType::Fixed},
                                               {"network", DriveType::Network},
                                               {"cdrom", DriveType::CdRom},
                                               {"ramdisk", DriveType::RamDisk}}};

// The reading of one value; what it throws is a reason.
FolderPath pathOf(std::string_view value) {
  FolderPath path;
  const bool absolute = value.size() > 2 && value[1] == ':' && value[2] == '\\';
  if (!absolute || parsePath(value, FolderPath{}, path) != PathFault::None) {
    throw Refused{"\"" + utf8FromAnsi(value) + "\" is no path such as C:\\WINDOWS"};
  }
  return path;
}

char driveOf(std::string_view value) {
  const char letter =
      value.size() == 1 ? static_cast<char>(UpperCase1252[static_cast<unsigned char>(value[0])]) : '\0';
  if (letter < 'A' || letter > 'Z') throw Refused{"\"" + utf8FromAnsi(value) + "\" is no drive letter"};
  return letter;
}

DriveType kindOf(std::string_view value) {
  for (const DriveKind& kind : DriveKinds) {
    if (equalFolded(kind.name, value)) return kind.type;
  }
  throw Refused{"\"" + utf8FromAnsi(value) +
                "\" is no kind of drive: fixed, removable, network, cdrom, ramdisk or unknown"};
}

const Family* familyOf(std::string_view value) {
  for (const Family* family : {&family9x, &familyNt}) {
    if (equalFolded(value, family->name)) return family;
  }
  throw Refused{"the family is 9x or nt"};
}

std::string registryPath(std::string_view value) {
  const std::string_view hive = value.substr(0, value.find('\\'));
  const bool known =
      std::ranges::any_of(HiveNames, [&](const auto& row) { return equalFolded(row.name, hive); });
  if (!known || value.ends_with('\\')) {
    throw Refused{"\"" + utf8FromAnsi(value) + "\" is no path such as HKEY_LOCAL_MACHINE\\Software"};
  }
  return std::string(value);
}

std::string userOf(std::string_view value) {
  if (value.empty() || value.find('\\') != std::string_view::npos) {
    throw Refused{"\"" + utf8FromAnsi(value) + "\" is no name of a key of HKEY_USERS, such as .DEFAULT"};
  }
  return std::string(value);
}

struct Fact {
  std::string_view name;
  bool many;
  void (*take)(PcFacts&, std::string_view);
};

constexpr std::array<Fact, 12> Facts{{
    {"family", false, [](PcFacts& pc, std::string_view value) { pc.family = familyOf(value); }},
    {"windows", false, [](PcFacts& pc, std::string_view value) { pc.windows = pathOf(value); }},
    {"temp", false, [](PcFacts& pc, std::string_view value) { pc.temp = pathOf(value); }},
    {"program", false, [](PcFacts& pc, std::string_view value) { pc.program = pathOf(value); }},
    {"current", false, [](PcFacts& pc, std::string_view value) { pc.current = pathOf(value); }},
    {"user", false, [](PcFacts& pc, std::string_view value) { pc.user = userOf(value); }},
    {"read only", true,
     [](PcFacts& pc, std::string_view value) { pc.readOnlyDrives.insert(driveOf(value)); }},
    {"locked", true, [](PcFacts& pc, std::string_view value) { pc.locked.insert(pathOf(value).key()); }},
    {"hidden", true, [](PcFacts& pc, std::string_view value) { pc.hidden.insert(pathOf(value).key()); }},
    {"system", true, [](PcFacts& pc, std::string_view value) { pc.system.insert(pathOf(value).key()); }},
    {"no rights", true,
     [](PcFacts& pc, std::string_view value) { pc.noRights.push_back(registryPath(value)); }},
    {"remove at restart", true,
     [](PcFacts& pc, std::string_view value) { pc.removeAtRestart.push_back(pathOf(value).text()); }},
}};

constexpr std::string_view DrivePrefix = "drive ";
constexpr std::string_view Elsewhere = " at ";

}  // namespace

PcFacts::PcFacts(std::string_view text)
    : windows{'C', {"WINDOWS"}},
      temp{'C', {"WINDOWS", "TEMP"}},
      program{'C', {"Program Files", "Zubrane"}},
      current{'C', {}} {
  for (std::string_view rest = text; !rest.empty();) lines_.emplace_back(takeLineWithEnd(rest));
  eachPcLine(text, FileName, [this](const PcLine& line) { take(line); });
}

void PcFacts::take(const PcLine& line) {
  const std::string name = ansiFromUtf8(line.name);
  const std::string given = ansiFromUtf8(line.value);
  const std::string_view value = trim(given, PcBlanks);
  if (name.size() > DrivePrefix.size() && equalFolded(name.substr(0, DrivePrefix.size()), DrivePrefix)) {
    const char letter = driveOf(trim(name.substr(DrivePrefix.size()), PcBlanks));
    const auto at = value.find(Elsewhere);
    if (!drives.emplace(letter, kindOf(trim(value.substr(0, at), PcBlanks))).second) {
      throw Refused{"the drive was told before"};
    }
    // The host's own bytes: no stand-ins.
    if (at != std::string_view::npos)
      driveFolders[letter] = trim(line.value.substr(line.value.find(Elsewhere) + Elsewhere.size()), PcBlanks);
    return;
  }
  const auto fact = std::ranges::find_if(Facts, [&](const Fact& row) { return equalFolded(row.name, name); });
  if (fact == Facts.end()) throw Refused{joined({"unknown name \"", line.name, "\""})};
  if (!fact->many && !seen_.insert(folded(name)).second) throw Refused{"the name can stand only once"};
  fact->take(*this, value);
  if (fact->name == "hidden" || fact->name == "system") {
    attributeLines_.emplace(pathOf(value).key(), static_cast<std::size_t>(line.number - 1));
  }
}

void PcFacts::dropAttributes(const std::string& key) {
  if (hidden.erase(key) + system.erase(key) == 0) return;
  const auto [first, last] = attributeLines_.equal_range(key);
  for (auto line = first; line != last; ++line) lines_[line->second].clear();
  attributeLines_.erase(first, last);
  changed_ = true;
}

void PcFacts::addRemoveAtRestart(const FolderPath& path) {
  const std::string text = path.text();
  if (std::ranges::find(removeAtRestart, text) != removeAtRestart.end()) return;
  removeAtRestart.push_back(text);
  lines_.push_back("remove at restart = " + utf8FromAnsi(text) + "\n");
  changed_ = true;
}

std::string PcFacts::text() const {
  std::string result;
  for (const std::string& line : lines_) {
    // Only the last line that was read may lack its end.
    if (!line.empty() && !result.empty() && !result.ends_with('\n')) result += '\n';
    result += line;
  }
  return result;
}

}  // namespace zub
