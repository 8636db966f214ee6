// The PC that the console program works on: one in a folder, or the one that it runs on.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/console/Printable.h"
#include "platform/Platform.h"
#include "platform/folder/FolderTasks.h"

namespace zub {

class ConsolePc {
 public:
  virtual ~ConsolePc() = default;
  virtual Platform& platform() = 0;
  virtual void save() = 0;  // keeps what the program changed; PcError where it cannot
  // Tells what became of a registry that was exported, in a text beside it that can be imported; only what lies below a
  // path, where one is given. False where there was no such export.
  virtual bool saveChanges(bool withSettings, std::string_view below) = 0;
  // What failed on the PC's disks and that nobody may have told, as text for the terminal.
  virtual std::vector<std::string> failures() const = 0;
  // What the PC is not as it may have been meant, as text for the terminal.
  virtual std::vector<std::string> oddities() = 0;
  // For commands that wash: PcError where a wash would not find the PC's user, or no disk at all.
  virtual void needWashable() = 0;
  // For commands that remove: PcError where nothing can be removed or saved.
  virtual void needWritable() = 0;
  // The folder that holds the PC; empty for the PC that this runs on.
  virtual std::string folder() const = 0;
  virtual std::string user() const = 0;  // as given to openFolderPc
  // Text of the PC as UTF-8, and words of the command line for the PC.
  virtual std::string utf8(std::string_view text) const = 0;
  virtual std::string fromTerminal(std::string_view text) const = 0;

  // Text of the PC for the terminal: one line without control characters.
  std::string toTerminal(std::string_view text) const { return printable(utf8(text)); }
};

// Opens the PC in a folder. `user` goes before the one that its facts tell. PcError where it cannot be used.
std::unique_ptr<ConsolePc> openFolderPc(const std::string& folder, EventLoop& events, Messages& messages,
                                        const std::string& commandLine,
                                        DamagedTasks damaged = DamagedTasks::Refused,
                                        const std::string& user = {});
// The PC that this runs on; null where there is none that the program could wash.
std::unique_ptr<ConsolePc> openThisPc(EventLoop& events, Messages& messages);

}  // namespace zub
