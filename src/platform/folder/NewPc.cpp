#include "platform/folder/NewPc.h"

#include <array>

#include "platform/folder/FolderPath.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::string_view NewFacts =
    "# The facts of this PC; docs/pc-folder.md tells what can stand here.\n"
    "family = 9x\n"
    "windows = C:\\WINDOWS\n"
    "temp = C:\\WINDOWS\\TEMP\n"
    "program = C:\\Program Files\\Zubrane\n"
    "current = C:\\\n"
    "drive C = fixed\n";

struct ShellFolder {
  std::string_view name;
  std::string_view path;
};
constexpr std::array<ShellFolder, 15> ShellFolders{{
    {"AppData", "C:\\WINDOWS\\Application Data"},
    {"Cache", "C:\\WINDOWS\\Temporary Internet Files"},
    {"Cookies", "C:\\WINDOWS\\Cookies"},
    {"Desktop", "C:\\WINDOWS\\Desktop"},
    {"Favorites", "C:\\WINDOWS\\Favorites"},
    {"Fonts", "C:\\WINDOWS\\FONTS"},
    {"History", "C:\\WINDOWS\\History"},
    {"NetHood", "C:\\WINDOWS\\NetHood"},
    {"Personal", "C:\\My Documents"},
    {"Programs", "C:\\WINDOWS\\Start Menu\\Programs"},
    {"Recent", "C:\\WINDOWS\\Recent"},
    {"SendTo", "C:\\WINDOWS\\SendTo"},
    {"Start Menu", "C:\\WINDOWS\\Start Menu"},
    {"Startup", "C:\\WINDOWS\\Start Menu\\Programs\\StartUp"},
    {"Templates", "C:\\WINDOWS\\ShellNew"},
}};
constexpr std::string_view ShellFoldersKey =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr std::array<std::string_view, 2> OtherFolders{"C:\\WINDOWS\\TEMP", "C:\\Program Files\\Zubrane"};

std::unique_ptr<HostDir> make(HostDir& folder, const std::string& name) {
  HostError error = folder.makeDir(name);
  if (error == HostError::Exists) error = HostError::None;
  std::unique_ptr<HostDir> made;
  if (error == HostError::None) error = folder.openDir(name, made);
  if (error != HostError::None) throw PcError(name, 0, "cannot be made: " + reasonOf(error));
  return made;
}

void makeFolder(HostDir& root, std::string_view path) {
  FolderPath parts;
  parsePath(path, FolderPath{}, parts);
  std::unique_ptr<HostDir> folder = make(root, std::string(1, parts.drive));
  for (const std::string& part : parts.parts) folder = make(*folder, part);
}

// The folder, made where it is missing.
std::unique_ptr<HostDir> openNew(std::string folder) {
  while (folder.size() > 1 && (folder.ends_with('/') || folder.ends_with('\\'))) folder.pop_back();
  if (auto present = openHostDir(folder)) return present;
  const auto separator = folder.find_last_of("/\\");
  const bool hasParent = separator != std::string::npos;
  const std::string above = hasParent ? folder.substr(0, separator + 1) : ".";
  const auto parent = openHostDir(above);
  if (!parent) throw PcError(above, 0, "is no folder that can be opened");
  return make(*parent, hasParent ? folder.substr(separator + 1) : folder);
}

}  // namespace

std::unique_ptr<HostDir> openEmptyFolder(const std::string& folder) {
  auto root = openNew(folder);
  if (root->take() == HostError::InUse) throw PcError(folder, 0, "is in use by another program: try again");
  std::unique_ptr<HostList> listing;
  HostEntry entry;
  HostError error = root->list(listing);
  if (error == HostError::None && listing->next(entry)) throw PcError(folder, 0, "is not empty");
  if (error == HostError::None) error = listing->failure();
  if (error != HostError::None) throw PcError(folder, 0, "cannot be read: " + reasonOf(error));
  return root;
}

void createPc(const std::string& folder) {
  const auto root = openEmptyFolder(folder);
  RegistryTree registry;
  RegistryNode& key = *registry.make(ShellFoldersKey);
  for (const ShellFolder& row : ShellFolders) {
    makeFolder(*root, row.path);
    std::string text(row.path);
    text += '\0';
    key.values[row.name] = {static_cast<std::uint32_t>(ValueType::Text), std::move(text)};
  }
  for (const std::string_view path : OtherFolders) makeFolder(*root, path);
  replaceHostText(*root, FolderPc::RegistryName, writeRegistryText(registry));
  replaceHostText(*root, PcFacts::FileName, NewFacts);
}

}  // namespace zub
