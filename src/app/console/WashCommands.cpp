#include <functional>
#include <optional>

#include "app/Program.h"
#include "app/console/Commands.h"
#include "app/console/OddFolders.h"
#include "app/console/Store.h"
#include "base/Text.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

// The report lies in memory with CR LF behind each line; a terminal wants no blank line at its end.
void printLines(const CommandContext& context, std::string_view text) {
  while (text.ends_with(CrLf)) text.remove_suffix(CrLf.size());
  for (auto end = text.find(CrLf); end != std::string_view::npos; end = text.find(CrLf)) {
    context.print(text.substr(0, end));
    text.remove_prefix(end + CrLf.size());
  }
  context.print(text);
}

// What could not be saved. After a wash in the midst of the program it is tried again at the end.
std::optional<PcError> saved(ConsolePc& pc) {
  try {
    pc.save();
  } catch (const PcError& failure) {
    return failure;
  }
  return std::nullopt;
}

void printReport(const CommandContext& context, Program& program) {
  if (program.engine.clean.txtResult.empty()) return;
  printLines(context, program.engine.clean.txtResult);
  const frmAnimated::State& shown = program.engine.animated.peek().state;
  context.print("");
  context.print(shown.lblRemove.Caption);
  context.print(shown.StatusBar1[1]);
  context.print(program.options.lblLastRemoval.Caption);
}

// The loop serves the program for as long as this lives.
struct Attached {
  Attached(ConsoleLoop& served, Program& program) : loop(served) { loop.attach(program); }
  Attached(const Attached&) = delete;
  Attached& operator=(const Attached&) = delete;
  ~Attached() { loop.detach(); }
  ConsoleLoop& loop;
};

// Runs the program from its start to the end of the process.
int runProgram(CommandContext& context, const std::function<void(Program&)>& afterStart) {
  context.needAlone();
  for (const std::string& folder : oddFolders(context.pc.platform().registry)) {
    context.tell(context.pc.toTerminal(folder));
  }
  Program program(context.pc.platform());
  program.engine.clean.cleaners.ended = [&context] { saved(context.pc); };
  {
    const Attached attached(context.loop, program);
    try {
      program.start();
      afterStart(program);
      if (program.engine.animated.loaded()) program.engine.animated->cmdFinish_Click();
      program.main.Unload();
    } catch (const EndOfProcess&) {
    }
  }
  const std::optional<PcError> unsaved = saved(context.pc);
  printReport(context, program);
  if (unsaved) throw *unsaved;
  needStoreSaved(program.engine.pc, program.options);
  for (const std::string& folder : program.engine.unread) context.tell("not looked into: " + folder);
  if (program.engine.leftBehind == 0) return exitStatus::Done;
  context.tell(std::to_string(program.engine.leftBehind) + " files, folders or keys could not be removed");
  return exitStatus::LeftBehind;
}

}  // namespace

int washCommand(CommandContext& context) {
  context.needNoArguments("wash");
  return runProgram(context, [](Program& program) { program.main.cmdRemove_Click(); });
}

int startCommand(CommandContext& context) {
  for (const std::string& argument : context.arguments) {
    if (argument != "/STARTUP" && argument != "/SCHEDULER") {
      throw UsageError("start takes /STARTUP and /SCHEDULER, not \"" + argument + "\"");
    }
  }
  return runProgram(context, [](Program&) {});
}

}  // namespace zub
