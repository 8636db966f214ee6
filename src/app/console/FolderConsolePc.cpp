#include <algorithm>

#include "app/console/Changes.h"
#include "app/console/Commands.h"
#include "app/console/ConsolePc.h"
#include "app/console/RegistryLook.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderPc.h"
#include "platform/folder/PcError.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr const char* NoDrive =
    "has no drive to wash: a drive is a folder in it with one capital letter, or one that "
    "\"drive C = fixed at FOLDER\" in pc.txt names";
// Without the folders of the shell, cookies would be looked for at the root of the drive.
constexpr const char* NoUser =
    "is not washed: its HKEY_CURRENT_USER has no Shell Folders that name the folder of the cookies, so the "
    "traces "
    "of its user would not be found, and other files would be taken for them; choose a user with --user "
    "NAME, or "
    "with \"user = NAME\" in pc.txt (the command \"users\" lists them)";

class FolderConsolePc : public ConsolePc {
 public:
  FolderConsolePc(const std::string& folder, EventLoop& events, Messages& messages,
                  const std::string& commandLine, DamagedTasks damaged, const std::string& user)
      : folder_(folder),
        user_(user),
        pc_(folder, commandLine, damaged, user),
        platform_(pc_.platform(events, messages)) {}

  Platform& platform() override { return platform_; }
  void save() override { pc_.save(); }
  bool saveChanges(bool withSettings, std::string_view below) override {
    return zub::saveChanges(pc_, withSettings, below);
  }
  std::vector<std::string> failures() const override {
    const HostFailures& failures = pc_.failures();
    std::vector<std::string> texts;
    for (const std::string& text : failures.texts()) texts.push_back(printable(text));
    if (failures.more() > 0) texts.push_back(std::to_string(failures.more()) + " more failures");
    return texts;
  }
  std::vector<std::string> oddities() override {
    std::vector<std::string> lines = pc_.driveFolders().oddities();
    for (const std::string& bins : pc_.shell.unknownBins()) {
      lines.push_back(utf8FromAnsi(bins) +
                      ": no recycle bin in it is emptied: \"user = S-1-...\" tells whose is meant");
    }
    for (std::string& line : lines) line = printable(line);
    return lines;
  }
  void needWashable() override {
    if (pc_.driveFolders().withDisk().empty()) throw PcError(folder_, 0, NoDrive);
    if (shellFolderOf(pc_.registry, "Cookies").empty()) throw PcError(folder_, 0, NoUser);
  }
  void needWritable() override {
    DriveFolders& drives = pc_.driveFolders();
    if (std::ranges::all_of(drives.withDisk(), [&](char letter) { return drives.isReadOnly(letter); })) {
      throw PcError(folder_, 0, "is not washed: nothing can be removed, since its drives are read-only");
    }
    const HostError texts = pc_.root().mayRemove(FolderPc::RegistryName);
    if (texts == HostError::ReadOnlyDisk || texts == HostError::NoRights) {
      throw PcError(folder_, 0, "is not washed: its registry could not be saved: " + reasonOf(texts));
    }
  }
  std::string folder() const override { return folder_; }
  std::string user() const override { return user_; }
  std::string utf8(std::string_view text) const override { return utf8FromAnsi(text); }
  std::string fromTerminal(std::string_view text) const override { return ansiFromUtf8(text); }

 private:
  std::string folder_;
  std::string user_;
  FolderPc pc_;
  Platform platform_;
};

}  // namespace

std::unique_ptr<ConsolePc> openFolderPc(const std::string& folder, EventLoop& events, Messages& messages,
                                        const std::string& commandLine, DamagedTasks damaged,
                                        const std::string& user) {
  return std::make_unique<FolderConsolePc>(folder, events, messages, commandLine, damaged, user);
}

}  // namespace zub
