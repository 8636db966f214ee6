// The commands of the console program: one table, from which the command line is read and the help, the manual page and the
// completions are made. Each returns the exit status; UsageError, Refusal and PcError end in status 2.
#pragma once

#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/console/ConsoleLoop.h"
#include "app/console/ConsolePc.h"

namespace zub {

namespace exitStatus {
inline constexpr int Done = 0;        // all that was tried went
inline constexpr int LeftBehind = 1;  // something could not be removed, or not be looked at
inline constexpr int Unusable = 2;    // wrong usage, or an unusable PC folder
}  // namespace exitStatus

// What was typed is no command line of the program.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What was typed well does not go on this PC, such as the name of a plugin that is not there.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Another program works on the PC: the same command may go later.
class BusyError : public std::runtime_error {
 public:
  BusyError() : std::runtime_error("another Zubrane is at work on this PC: try again when it has ended") {}
};

// What stands behind a command's words.
struct Given {
  std::vector<std::string> arguments;
  std::vector<std::pair<std::string, std::string>> options;  // as "--list", with the value behind it or none

  bool has(std::string_view option) const;
  std::vector<std::string> valuesOf(std::string_view option) const;
  std::string valueOf(std::string_view option) const;  // the last one; empty where there is none
};

struct CommandContext {
  ConsolePc& pc;
  ConsoleLoop& loop;
  Given given;  // in the PC's code page

  // For commands that change the PC, before they look at it: BusyError where another program is at work on
  // it. Keeps others out until the PC is closed.
  void needAlone() const;
  void print(std::string_view text) const;  // to standard output, with a line end
  // The fields of a row for other programs, with tabs between.
  void printRow(std::initializer_list<std::string_view> fields) const;
  void tell(const std::string& failure) const { loop.tell(failure); }
};

struct CommandOption {
  std::string_view name;   // with its hyphens
  std::string_view value;  // what is to stand behind it, for the help; empty for none
  std::string_view help;
};

struct Command {
  std::string_view words;      // one word or two, as typed
  std::string_view arguments;  // for the help
  std::string_view help;       // the first sentence stands in the list of commands
  std::string_view example;    // behind the program's name
  std::span<const CommandOption> options;
  void (*check)(const Given& given);  // UsageError, before a PC is opened; none: it takes no arguments
  int (*run)(CommandContext& context);
  // For the few that need no PC; `run` is null.
  int (*runWithoutPc)(const Given& given, const std::string& program) = nullptr;
  bool ordered =
      false;  // its options count by their places: all its words are arguments, and --user is its own
};

std::span<const Command> commands();

// Runs a command, and tells what failed on the PC's disks without a word: then the status is LeftBehind at the least.
int runCommand(CommandContext& context, int (*command)(CommandContext& context));

// The number of a listed row, from 1; 0 where the word is none.
int rowNumber(std::string_view word);

void checkStart(const Given& given);
void checkGet(const Given& given);
void checkSet(const Given& given);
void checkPluginShow(const Given& given);
void checkPluginCheck(const Given& given);
void checkCookies(const Given& given);
void checkSchedule(const Given& given);
void checkScheduleAdd(const Given& given);
void checkScheduleRemove(const Given& given);
void checkNew(const Given& given);
void checkHelp(const Given& given);
void checkCompletion(const Given& given);
void checkWash(const Given& given);
void checkPreview(const Given& given);
void checkChanges(const Given& given);

int washCommand(CommandContext& context);
int previewCommand(CommandContext& context);
int startCommand(CommandContext& context);
int optionsCommand(CommandContext& context);
int getCommand(CommandContext& context);
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
int newCommand(const Given& given, const std::string& program);
int helpCommand(const Given& given, const std::string& program);
int completionCommand(const Given& given, const std::string& program);
int manualCommand(const Given& given, const std::string& program);

}  // namespace zub
