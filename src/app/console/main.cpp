// zub, the console program: a wash without windows.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/console/Commands.h"
#include "app/console/ImportCommand.h"
#include "app/console/Printable.h"
#include "base/RuntimeError.h"
#include "platform/folder/NewPc.h"

namespace {

using namespace zub;

void printHelp() {
  std::printf(
      "Zubrane, a privacy cleaner.\n\n"
      "  zub --pc FOLDER COMMAND   works on a PC kept in a folder\n"
      "  zub --pc FOLDER --user NAME COMMAND\n"
      "                            the same, as the user of this branch of HKEY_USERS\n"
      "  zub COMMAND               works on the PC that it runs on (Windows only)\n"
      "  zub new FOLDER            makes a PC that nobody has worked on\n"
      "  zub import --registry EXPORT... [--user NAME] [--drive C=FOLDER]... FOLDER\n"
      "                            makes a PC of exports of its registry and its mounted disks; --as KEY\n"
      "                            before exports whose keys name no hive\n"
      "  zub --help | --version\n\n"
      "Commands:\n");
  for (const Command& command : commands()) {
    const std::string usage = std::string(command.words) + " " + std::string(command.arguments);
    std::printf("  %-40s %s\n", usage.c_str(), std::string(command.help).c_str());
  }
  std::printf(
      "\nExit status: 0 all that was tried went, 1 something could not be removed or looked at, 2 wrong "
      "usage or an "
      "unusable PC.\n");
}

// The command whose words the arguments begin with; they are taken from the arguments.
const Command& takeCommand(std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError("no command is given");
  for (const Command& command : commands()) {
    std::string words = arguments[0];
    std::size_t count = 1;
    if (command.words.find(' ') != std::string_view::npos && arguments.size() > 1) {
      words += " " + arguments[1];
      count = 2;
    }
    if (words != command.words) continue;
    arguments.erase(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(count));
    return command;
  }
  throw UsageError("there is no command \"" + arguments[0] + "\"");
}

std::string joinedBehind(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

int run(std::vector<std::string> arguments) {
  if (arguments == std::vector<std::string>{"--help"}) {
    printHelp();
    return exitStatus::Done;
  }
  if (arguments == std::vector<std::string>{"--version"}) {
    std::printf("Zubrane %s\n", ZUB_VERSION);
    return exitStatus::Done;
  }
  if (!arguments.empty() && arguments[0] == "new") {
    if (arguments.size() != 2) throw UsageError("new takes a folder");
    createPc(arguments[1]);
    return exitStatus::Done;
  }
  if (!arguments.empty() && arguments[0] == "import") {
    arguments.erase(arguments.begin());
    return importCommand(arguments);
  }
  std::string folder;
  if (!arguments.empty() && arguments[0] == "--pc") {
    if (arguments.size() < 2 || arguments[1].empty()) throw UsageError("--pc takes a folder");
    folder = arguments[1];
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  std::string user;
  if (!arguments.empty() && arguments[0] == "--user") {
    if (folder.empty() || arguments.size() < 2 || arguments[1].empty()) {
      throw UsageError("--user takes a name, behind --pc FOLDER");
    }
    user = arguments[1];
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  const Command& command = takeCommand(arguments);

  ConsolePc* opened = nullptr;
  ConsoleLoop loop([&opened](std::string_view text) { return opened->toTerminal(text); });
  const auto pc =
      folder.empty() ? openThisPc(loop, loop)
                     : openFolderPc(folder, loop, loop, joinedBehind(arguments), DamagedTasks::Refused, user);
  if (!pc) throw UsageError("there is no Windows here to work on: give a PC in a folder with --pc FOLDER");
  opened = pc.get();
  for (std::string& argument : arguments) argument = pc->fromTerminal(argument);
  CommandContext context{*pc, loop, std::move(arguments)};
  try {
    return runCommand(context, command.run);
  } catch (const UsageError& error) {
    throw UsageError(pc->toTerminal(error.what()));
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), pc->toTerminal(error.what()));
  }
}

// A failure that nobody can catch is told in the program's own words too.
[[noreturn]] void endAtOnce() {
  std::fprintf(stderr, "%s: a failure in the midst of another one\n", programName);
  std::_Exit(exitStatus::Unusable);
}

// What cannot be written is an error of the call, not the end of the process in the midst of a wash.
void catchSignals() {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);
#endif
}

void finishOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    throw std::runtime_error("the output could not be written");
  }
}

}  // namespace

int main(int count, char** words) {
  std::set_terminate(endAtOnce);
  catchSignals();
  try {
    const int status = run(commandWords(count, words));
    finishOutput();
    return status;
  } catch (const UsageError& error) {
    std::fprintf(stderr, "%s: %s\nSee \"%s --help\".\n", programName, error.what(), programName);
  } catch (...) {
    std::fprintf(stderr, "%s: %s\n", programName, printableLines(textOfFailure()).c_str());
  }
  return exitStatus::Unusable;
}
