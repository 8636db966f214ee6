#include "support/Snapshot.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "platform/folder/HostText.h"

namespace zub {
namespace {

using Lines = std::vector<std::string>;

std::string hex(std::uint32_t number, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*x", digits, number);
  return text;
}

std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t sum = 2166136261u;
  for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
  return sum;
}

void addFolder(Lines& lines, HostDir& folder, const std::string& path) {
  std::unique_ptr<HostList> listing;
  if (folder.list(listing) != HostError::None) return;
  HostEntry entry;
  while (listing->next(entry)) {
    const std::string entryPath = path + "\\" + ansiFromUtf8(entry.name);
    std::unique_ptr<HostDir> below;
    switch (entry.stat.kind) {
      case HostKind::Folder:
        lines.push_back("folder " + entryPath);
        if (folder.openDir(entry.name, below) == HostError::None) addFolder(lines, *below, entryPath);
        break;
      case HostKind::File: {
        const std::string bytes = readHostText(folder, entry.name).value_or("");
        lines.push_back("file " + entryPath + " " + std::to_string(bytes.size()) + " " +
                        hex(checksum(bytes), 8));
        break;
      }
      case HostKind::Link:
        lines.push_back("link " + entryPath);
        break;
      case HostKind::Other:
        lines.push_back("device " + entryPath);
        break;
    }
  }
}

std::string dataText(const RegistryValue& value) {
  const bool isText = value.type == static_cast<std::uint32_t>(ValueType::Text) &&
                      value.data.ends_with('\0') &&
                      std::none_of(value.data.begin(), value.data.end() - 1,
                                   [](char c) { return static_cast<unsigned char>(c) < 32; });
  if (isText) return "\"" + value.data.substr(0, value.data.size() - 1) + "\"";
  std::string text = std::to_string(value.type) + ":";
  for (const char c : value.data) text += hex(static_cast<unsigned char>(c), 2);
  return text;
}

void addKey(Lines& lines, const RegistryNode& node, const std::string& path) {
  for (const auto& [name, value] : node.values) {
    lines.push_back("value " + path + " \"" + name + "\" = " + dataText(value));
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
    const auto end = std::min(text.find('\n'), text.size() - 1);
    lines.emplace_back(text.substr(0, end + 1));
    text.remove_prefix(end + 1);
  }
  return lines;
}

}  // namespace

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
  std::string text;
  auto left = old.begin();
  auto right = now.begin();
  while (left != old.end() || right != now.end()) {
    if (left != old.end() && right != now.end() && *left == *right) {
      ++left;
      ++right;
    } else if (right == now.end() || (left != old.end() && *left < *right)) {
      text += "- " + *left++;
    } else {
      text += "+ " + *right++;
    }
  }
  return text;
}

}  // namespace zub
