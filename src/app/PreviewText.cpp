#include "app/PreviewText.h"

namespace zub {
namespace {

std::string counted(std::int64_t count, const char* one, const char* several) {
  return std::to_string(count) + ' ' + (count == 1 ? one : several);
}

}  // namespace

std::string sumsText(const Preview::Sums& sums) {
  return counted(sums.files, "file", "files") + " of " + counted(sums.bytes, "byte", "bytes") + ", " +
         counted(sums.folders, "folder", "folders") + ", " +
         counted(sums.keys, "registry key", "registry keys") + ", " + counted(sums.values, "value", "values");
}

std::vector<std::string> closingLines(const Preview::Sums& sums) {
  std::vector<std::string> lines{"Would go: " + sumsText(sums)};
  std::string nothing;
  for (const std::string& name : sums.foundNothing) nothing += (nothing.empty() ? "" : ", ") + name;
  if (!nothing.empty()) lines.push_back("Nothing to remove for: " + nothing);
  lines.emplace_back(
      "Nothing has been removed. What other programs open, write or remove until the wash is not foretold.");
  return lines;
}

}  // namespace zub
