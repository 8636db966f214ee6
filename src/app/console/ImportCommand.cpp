#include "app/console/ImportCommand.h"

#include <unistd.h>

#include <array>

#include "app/console/Commands.h"
#include "app/console/FoundPc.h"
#include "app/console/Printable.h"
#include "app/console/Terminal.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/HostText.h"
#include "platform/folder/NewPc.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryParts.h"
#include "platform/folder/RegistryText.h"

namespace zub {
namespace {

constexpr std::size_t LongestFolder = 4096;
constexpr const char* Usage = "import takes --registry EXPORT... and the folder to make";

void print(const std::string& text) {
  terminal::write(terminal::Stream::Output, printable(text) + "\n");
}

std::size_t keysIn(const RegistryNode& node) {
  std::size_t keys = 0;
  for (const auto& [name, key] : node.keys) keys += 1 + keysIn(*key);
  return keys;
}

std::size_t keysIn(RegistryTree& tree) {
  std::size_t keys = 0;
  for (std::size_t i = 0; i < HiveNames.size(); ++i) keys += keysIn(tree.hive(i));
  return keys;
}

// The tree of all exports; `form` is that of the first.
RegistryTree readExports(const std::vector<ImportWanted::Export>& exports, RegistryForm& form) {
  RegistryTree tree;
  for (const ImportWanted::Export& one : exports) {
    const std::optional<std::string> text = readHostTextAt(one.file);
    if (!text) throw PcError(one.file, 0, "is no file that can be read");
    if (&one == &exports.front()) form = formOf(*text);
    const std::size_t before = keysIn(tree);
    readRegistryInto(tree, *text, one.file, one.below);
    print(one.file + ": " + std::to_string(keysIn(tree) - before) + " keys");
  }
  if (!canBeWritten(tree, MostTextBytes))
    throw PcError(exports.front().file, 0, "is too large: it could not be saved");
  return tree;
}

// A fact with where it comes from above it; nothing but that where there is none.
std::string lines(const char* name, const FoundFact& fact) {
  std::string text = "# " + fact.reason + "\n";
  if (fact.value.empty()) text = std::string("# ") + name + ": " + fact.reason + "\n";
  if (!fact.value.empty()) text += std::string(name) + " = " + utf8FromAnsi(fact.value) + "\n";
  return text;
}

std::string factsText(const FoundPc& pc, const std::map<char, std::string>& drives) {
  const std::string drive = pc.windows.value.substr(0, 2);
  std::string text = "# Made by \"zub import\"; docs/pc-folder.md tells what can stand here.\n";
  text += lines("family", pc.family) + lines("windows", pc.windows) + lines("user", pc.user) +
          lines("temp", pc.temp);
  text += "program = " + drive + "\\Program Files\\Zubrane\ncurrent = " + drive + "\\\n";
  for (const auto& [letter, folder] : drives) {
    text += "drive " + std::string(1, letter) + " = fixed at " + folder + "\n";
  }
  return text;
}

// The folder of the host as it can be found from everywhere.
std::string absolute(const std::string& folder) {
  if (isAbsoluteOnHost(folder)) return folder;
  std::array<char, LongestFolder> current{};
  if (getcwd(current.data(), current.size()) == nullptr) return folder;
  return std::string(current.data()) + "/" + folder;
}

}  // namespace

ImportWanted importWanted(const std::vector<std::string>& arguments) {
  ImportWanted wanted;
  std::string below;
  bool exports = false;
  for (std::size_t word = 0; word + 1 < arguments.size(); ++word) {
    const std::string& option = arguments[word];
    if (!option.starts_with("--")) {
      if (!exports) throw UsageError(Usage);
      wanted.exports.push_back({option, below});
      continue;
    }
    exports = option == "--registry";
    if (exports) continue;
    if (word + 2 >= arguments.size()) throw UsageError(Usage);
    const std::string& value = arguments[++word];
    if (option == "--as") {
      below = value;
    } else if (option == "--user") {
      wanted.user = value;
    } else if (option == "--drive") {
      const std::string letter = folded(value.substr(0, 1));
      if (value.size() < 3 || value[1] != '=' || letter < "A" || letter > "Z") {
        throw UsageError("--drive takes LETTER=FOLDER, such as C=/mnt/xp");
      }
      wanted.drives[letter[0]] = value.substr(2);
    } else {
      throw UsageError("import knows no \"" + option + "\"");
    }
  }
  if (wanted.exports.empty()) throw UsageError(Usage);
  wanted.folder = arguments.back();
  return wanted;
}

int importCommand(const std::vector<std::string>& arguments) {
  ImportWanted wanted = importWanted(arguments);
  RegistryForm form;
  RegistryTree tree = readExports(wanted.exports, form);
  showParts(tree, ansiFromUtf8(wanted.user));
  const FolderRegistry::Rules rules{&family9x, {}};
  FolderRegistry registry(tree, rules);
  const FoundPc found = findPc(registry, ansiFromUtf8(wanted.user));
  for (auto& [letter, folder] : wanted.drives) {
    folder = absolute(folder);
    if (!openHostDir(folder)) throw PcError(folder, 0, "is no folder that can be opened");
  }
  const std::string facts = factsText(found, wanted.drives);

  const auto root = openEmptyFolder(wanted.folder);
  replaceHostText(*root, FolderPc::RegistryName, writeRegistryText(tree, form));
  replaceHostText(*root, PcFacts::FileName, facts);
  terminal::write(terminal::Stream::Output, printableLines(facts) + "\n");

  FolderPc pc(wanted.folder);
  for (const std::string& line : pc.driveFolders().oddities()) print(line);
  for (const FoundFact* fact : {&found.windows, &found.temp}) {
    if (!pc.files.folderExists(fact->value))
      print(utf8FromAnsi(fact->value) + " is not on the drives of this PC");
  }
  return exitStatus::Done;
}

}  // namespace zub
