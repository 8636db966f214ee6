#include "app/console/Commands.h"
#include "app/console/ConsolePc.h"
#include "platform/folder/CodePage1252.h"
#include "platform/folder/FolderPc.h"

namespace zub {
namespace {

class FolderConsolePc : public ConsolePc {
 public:
  FolderConsolePc(const std::string& folder, EventLoop& events, Messages& messages,
                  const std::string& commandLine, DamagedTasks damaged)
      : folder_(folder), pc_(folder, commandLine, damaged), platform_(pc_.platform(events, messages)) {}

  Platform& platform() override { return platform_; }
  void save() override { pc_.save(); }
  std::vector<std::string> failures() const override {
    const HostFailures& failures = pc_.failures();
    std::vector<std::string> texts;
    for (const std::string& text : failures.texts()) texts.push_back(printable(text));
    if (failures.more() > 0) texts.push_back(std::to_string(failures.more()) + " more failures");
    return texts;
  }
  std::string folder() const override { return folder_; }
  std::string utf8(std::string_view text) const override { return utf8FromAnsi(text); }
  std::string fromTerminal(std::string_view text) const override { return ansiFromUtf8(text); }

 private:
  std::string folder_;
  FolderPc pc_;
  Platform platform_;
};

}  // namespace

void checkNew(const Given& given) {
  if (given.arguments.size() != 1) throw UsageError("new takes a folder");
}

int newCommand(const Given& given, const std::string&) {
  createPc(given.arguments[0]);
  return exitStatus::Done;
}

std::unique_ptr<ConsolePc> openFolderPc(const std::string& folder, EventLoop& events, Messages& messages,
                                        const std::string& commandLine, DamagedTasks damaged) {
  return std::make_unique<FolderConsolePc>(folder, events, messages, commandLine, damaged);
}

}  // namespace zub
