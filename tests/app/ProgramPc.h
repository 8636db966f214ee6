// A test PC with the program on it. Each start is a fresh process on the same PC.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "app/Program.h"
#include "app/Timers.h"
#include "base/Text.h"
#include "support/TestPc.h"

namespace zub {

struct ProgramPc {
  inline static const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";
  inline static const std::string Temp = "C:\\WINDOWS\\TEMP\\";

  TestPc pc;
  std::unique_ptr<Program> program;
  int washes = 0;  // counted where a wash cleans the find history

  // Starts the program; true if the process ended in it. A wash then runs `inWash` where it would clean the find
  // history, which the store has switched on.
  bool start(std::string_view commandLine = "", const Handler& inWash = {}) {
    pc.commandLine = commandLine;
    setting("chkFindHistory", "1");
    program = std::make_unique<Program>(pc.platform());
    program->engine.clean.cleaners.builtIn[static_cast<std::size_t>(Task::FindHistory)] = [this, inWash] {
      ++washes;
      raise(inWash);
    };
    return ends([this] { program->start(); });
  }
  template <class Action>
  static bool ends(Action action) {
    try {
      action();
    } catch (const EndOfProcess&) {
      return true;
    }
    return false;
  }

  void setting(std::string_view name, std::string_view text) { pc.value(Store, name, text); }
  std::string stored(std::string_view name) const { return pc.text(Store, name).value_or("none"); }
  void plugin(const std::string& name, std::string_view files) {
    const std::string base = "C:\\Program Files\\Zubrane\\Plugins\\" + name;
    pc.file(base + ".zb1", files);
    pc.file(base + ".zb2", "No entries.\r\n");
  }
  // Three files for the temp folder's task, which gives turns.
  void tempFiles() {
    for (const char* name : {"a", "b", "c"}) pc.file(Temp + name);
    setting("chkTempFolder", "1");
  }
  int tempFilesLeft() const {
    int left = 0;
    for (const char* name : {"a", "b", "c"}) left += pc.hasFile(Temp + name) ? 1 : 0;
    return left;
  }

  Options& options() { return program->options; }
  frmMain& main() { return program->main; }
  frmIcon& icon() { return program->icon; }
  AutoLoad<frmAnimated>& progress() { return program->engine.animated; }
};

}  // namespace zub
