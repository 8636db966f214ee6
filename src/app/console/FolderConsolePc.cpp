#include "app/console/ConsolePc.h"
#include "app/console/Printable.h"
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
    for (const std::string& text : failures.texts()) texts.push_back(printable(text, Letters::Utf8));
    if (failures.more() > 0) texts.push_back(std::to_string(failures.more()) + " more failures");
    return texts;
  }
  std::string folder() const override { return folder_; }
  std::string toTerminal(std::string_view text) const override {
    return printable(utf8FromAnsi(text), Letters::Utf8);
  }
  std::string fromTerminal(std::string_view text) const override { return ansiFromUtf8(text); }

 private:
  std::string folder_;
  FolderPc pc_;
  Platform platform_;
};

}  // namespace

std::unique_ptr<ConsolePc> openFolderPc(const std::string& folder, EventLoop& events, Messages& messages,
                                        const std::string& commandLine, DamagedTasks damaged) {
  return std::make_unique<FolderConsolePc>(folder, events, messages, commandLine, damaged);
}

}  // namespace zub
