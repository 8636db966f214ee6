#include "app/console/ConsolePc.h"
#include "platform/host/win32/Utf8.h"
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
      : windows_(events, tray_, [] { return nullptr; }), platform_(windows_.platform()) {
    platform_.folders = &folders_;
    platform_.messages = &messages;  // lines of the terminal here, not boxes
  }

  Platform& platform() override { return platform_; }
  void save() override {}  // the system keeps what was changed
  bool saveChanges(bool, std::string_view) override { return false; }
  std::vector<std::string> failures() const override { return {}; }
  std::vector<std::string> oddities() override { return {}; }
  void needWashable() override {}  // what runs is as it is
  void needWritable() override {}
  std::string folder() const override { return {}; }
  std::string user() const override { return {}; }
  std::string utf8(std::string_view text) const override { return utf8FromWide(untoldWide(text)); }
  std::string fromTerminal(std::string_view text) const override { return told(wideFromUtf8(text)); }

 private:
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
