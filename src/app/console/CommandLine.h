// The command line: the words behind the program's name, in UTF-8.
#pragma once

#include <string>
#include <vector>

#include "app/console/Commands.h"

namespace zub {

struct CommandLine {
  const Command* command = nullptr;  // null: of the whole program, with `help` or `version`
  bool help = false;
  bool version = false;
  std::string folder;  // of --pc; empty for the PC that this runs on
  std::string user;    // of --user, a branch of HKEY_USERS; empty for the one that the PC tells
  Given given;
};

// Wrong usage that the help of `command` explains; that of the program where it is null.
class CommandUsageError : public UsageError {
 public:
  CommandUsageError(const std::string& text, const Command* ofCommand)
      : UsageError(text), command(ofCommand) {}
  const Command* command;
};

// Checks all that can be told without a PC: CommandUsageError.
CommandLine readCommandLine(const std::vector<std::string>& words);

}  // namespace zub
