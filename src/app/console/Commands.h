// The commands of the console program. Each returns the exit status; UsageError and PcError end in status 2.
#pragma once

#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "app/console/ConsoleLoop.h"
#include "app/console/ConsolePc.h"

namespace zub {

namespace exitStatus {
inline constexpr int Done = 0;        // all that was tried went
inline constexpr int LeftBehind = 1;  // something could not be removed, or not be looked at
inline constexpr int Unusable = 2;    // wrong usage, or an unusable PC folder
}  // namespace exitStatus

inline constexpr const char* programName = "zub";

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Another program works on the PC: the same command may go later.
class BusyError : public std::runtime_error {
 public:
  BusyError() : std::runtime_error("another Zubrane is at work on this PC: try again when it has ended") {}
};

struct CommandContext {
  ConsolePc& pc;
  ConsoleLoop& loop;
  std::vector<std::string> arguments;  // behind the command's words, in the PC's code page

  // For commands that change the PC, before they look at it: BusyError where another program is at work on
  // it. Keeps others out until the PC is closed.
  void needAlone() const;
  void needNoArguments(std::string_view command) const;
  void print(std::string_view text) const;  // to standard output, with a line end
  // The fields of a row for other programs, with tabs between.
  void printRow(std::initializer_list<std::string_view> fields) const;
  void tell(const std::string& failure) const;  // to standard error, behind the program's name
};

struct Command {
  std::string_view words;      // one word or two, as typed
  std::string_view arguments;  // for the help text
  std::string_view help;
  int (*run)(CommandContext& context);
};

std::span<const Command> commands();

// Runs a command, and tells what failed on the PC's disks without a word: then the status is LeftBehind at the
// least.
int runCommand(CommandContext& context, int (*command)(CommandContext& context));

// The number of a listed row, from 1; 0 where the word is none.
int rowNumber(std::string_view word);

int washCommand(CommandContext& context);
int previewCommand(CommandContext& context);
int startCommand(CommandContext& context);
int optionsCommand(CommandContext& context);
int setCommand(CommandContext& context);
int pluginsCommand(CommandContext& context);
int pluginShowCommand(CommandContext& context);
int pluginCheckCommand(CommandContext& context);
int cookiesCommand(CommandContext& context);
int changesCommand(CommandContext& context);
int usersCommand(CommandContext& context);
int scheduleCommand(CommandContext& context);
int scheduleAddCommand(CommandContext& context);
int scheduleRemoveCommand(CommandContext& context);
int schedulerCommand(CommandContext& context);

}  // namespace zub
