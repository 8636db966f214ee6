#include "app/console/ConsolePc.h"
#include "platform/win32/Text.h"
#include "platform/win32/Win32Platform.h"
#include "platform/win32/Win32SystemFolders.h"

namespace zub {
namespace {

// The console program shows no icon.
class NoTray : public Tray {
 public:
  void add(std::string_view) override {}
  void remove() override {}
};

// The program that a dated wash starts is the windowed one, which lies beside this.
class FoldersOfZub : public Win32SystemFolders {
 public:
  std::string programFile() override { return "zub.exe"; }
};

class ThisPc : public ConsolePc {
 public:
  ThisPc(EventLoop& events, Messages& messages)
      : windows_(events, tray_, [] { return nullptr; }),
        platform_(withOwn(windows_.platform(), folders_, messages)) {}

  Platform& platform() override { return platform_; }
  void save() override {}  // the system keeps what was changed
  std::vector<std::string> failures() const override { return {}; }
  std::string folder() const override { return {}; }
  std::string utf8(std::string_view text) const override { return utf8FromWide(untoldWide(text)); }
  std::string fromTerminal(std::string_view text) const override { return told(wideFromUtf8(text)); }

 private:
  // Messages are lines of the terminal here, not boxes.
  static Platform withOwn(const Platform& pc, SystemFolders& folders, Messages& messages) {
    return {pc.codePage, pc.registry, pc.files,  pc.drives, folders, pc.restart, pc.shell,
            pc.clock,    pc.process,  pc.events, messages,  pc.tray, pc.tasks};
  }

  NoTray tray_;
  FoldersOfZub folders_;
  Win32Platform windows_;
  Platform platform_;
};

}  // namespace

std::unique_ptr<ConsolePc> openThisPc(EventLoop& events, Messages& messages) {
  return std::make_unique<ThisPc>(events, messages);
}

}  // namespace zub
