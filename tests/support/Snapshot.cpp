#include "support/Snapshot.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "platform/folder/HostText.h"

namespace zub {
namespace {

using Lines = std::vector<std::string>;

// The same on every machine, as approved texts hold it (FNV-1a, 32 bits).
std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t sum = 0x811C9DC5;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x01000193;
  return sum;
}

void addFolder(Lines& lines, HostDir& folder, const std::string& path) {
  std::unique_ptr<HostList> listing;
  if (folder.list(listing) != HostError::None) return;
  HostEntry entry;
  while (listing->next(entry)) {
    const std::string entryPath = path + "\\" + toldNameFromUtf8(entry.name);
    if (entry.stat.kind == HostKind::Folder) {
      lines.push_back("folder " + entryPath);
      std::unique_ptr<HostDir> below;
      if (folder.openDir(entry.name, below) == HostError::None) addFolder(lines, *below, entryPath);
    } else if (entry.stat.kind == HostKind::File) {
      const std::string bytes = readHostText(folder, entry.name).value_or("");
      lines.push_back("file " + entryPath + " " + std::to_string(bytes.size()) + " " +
                      std::to_string(checksum(bytes)));
    } else {
      lines.push_back("link or device " + entryPath);
    }
  }
}

void addKey(Lines& lines, const RegistryNode& node, const std::string& path) {
  for (const auto& [name, value] : node.values) {
    lines.push_back("value " + path + " \"" + name + "\" = " +
                    std::to_string(static_cast<std::uint32_t>(value.type)) + ":" + printable(value.data));
  }
  for (const auto& [name, key] : node.keys) {
    const std::string below = path + "\\" + name;
    lines.push_back("key " + below);
    addKey(lines, *key, below);
  }
}

Lines linesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const auto end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  return lines;
}

void addMissing(std::string& diff, std::string_view sign, const Lines& from, const Lines& in) {
  Lines missing;
  std::ranges::set_difference(from, in, std::back_inserter(missing));
  for (const std::string& line : missing) diff.append(sign).append(line) += '\n';
}

}  // namespace

std::string printable(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    char hex[8];
    std::snprintf(hex, sizeof hex, c >= ' ' && c <= '~' ? "%c" : "%%%02x", static_cast<unsigned char>(c));
    text += hex;
  }
  return text;
}

std::string snapshotOf(FolderPc& pc) {
  Lines lines;
  for (const std::string& drive : pc.drives.list()) {
    std::unique_ptr<HostDir> folder;
    if (pc.root().openDir(drive.substr(0, 1), folder) == HostError::None) addFolder(lines, *folder, drive);
  }
  for (std::size_t i = 0; i < HiveNames.size(); ++i) {
    const RegistryNode& hive = pc.registryTree().hive(i);
    addKey(lines, hive, hive.name);
  }
  std::ranges::sort(lines);
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

std::string diffOf(std::string_view before, std::string_view after) {
  const Lines old = linesOf(before);
  const Lines now = linesOf(after);
  std::string diff;
  addMissing(diff, "- ", old, now);
  addMissing(diff, "+ ", now, old);
  return diff;
}

}  // namespace zub
