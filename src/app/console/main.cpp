// zub, the console program: a wash without windows.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>

#include "app/console/CommandLine.h"
#include "app/console/Help.h"
#include "app/console/Interrupt.h"
#include "app/console/Printable.h"
#include "app/console/Terminal.h"
#include "base/RuntimeError.h"

namespace {

using namespace zub;
using terminal::Stream;

std::string joinedWords(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

int runOnPc(CommandLine line, const std::string& program) {
  ConsolePc* opened = nullptr;
  ConsoleLoop loop(program, [&opened](std::string_view text) { return opened->toTerminal(text); });
  const auto pc = line.folder.empty()
                      ? openThisPc(loop, loop)
                      : openFolderPc(line.folder, loop, loop, joinedWords(line.given.arguments),
                                     DamagedTasks::Refused, line.user);
  if (!pc) {
    throw CommandUsageError("there is no Windows here to work on: give a PC in a folder with --pc FOLDER",
                            line.command);
  }
  opened = pc.get();
  for (std::string& argument : line.given.arguments) argument = pc->fromTerminal(argument);
  for (auto& option : line.given.options) option.second = pc->fromTerminal(option.second);
  CommandContext context{*pc, loop, std::move(line.given)};
  try {
    return runCommand(context, line.command->run);
  } catch (const Refusal& error) {
    throw Refusal(pc->toTerminal(error.what()));
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), pc->toTerminal(error.what()));
  }
}

int run(const std::vector<std::string>& words, const std::string& program) {
  CommandLine line = readCommandLine(words);
  if (line.version) {
    terminal::write(Stream::Output, "Zubrane " ZUB_VERSION "\n");
    return exitStatus::Done;
  }
  if (line.help) {
    const std::size_t width = terminal::width(Stream::Output);
    terminal::write(Stream::Output, line.command == nullptr ? programHelp(program, width)
                                                            : commandHelp(*line.command, program, width));
    return exitStatus::Done;
  }
  if (line.command->run == nullptr) return line.command->runWithoutPc(line.given, program);
  return runOnPc(std::move(line), program);
}

// A failure that nobody can catch is told in the program's own words too.
[[noreturn]] void endAtOnce() {
  std::fprintf(stderr, "zub: a failure in the midst of another one\n");
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

void tell(const std::string& program, const std::string& failure) {
  terminal::write(Stream::Errors, program + ": " + printableLines(failure) + "\n");
}

}  // namespace

int main(int count, char** words) {
  std::set_terminate(endAtOnce);
  catchSignals();
  std::string program = "zub";
  int status = exitStatus::Unusable;
  try {
    std::vector<std::string> typed = terminal::commandWords(count, words);
    if (!typed.empty()) {
      program = terminal::programName(typed[0]);
      typed.erase(typed.begin());
    }
    status = run(typed, program);
    if (!terminal::outputWritten() && interrupt::signal() == 0) {
      tell(program, "the output could not be written");
      status = exitStatus::Unusable;
    }
  } catch (const CommandUsageError& error) {
    tell(program, error.what());
    const std::string command = error.command == nullptr ? "" : " " + std::string(error.command->words);
    terminal::write(Stream::Errors, "See \"" + program + command + " --help\".\n");
  } catch (...) {
    tell(program, textOfFailure());
  }
  return status;
}
