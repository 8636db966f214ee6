#include <functional>
#include <optional>

#include "app/Program.h"
#include "app/console/Commands.h"
#include "app/console/Interrupt.h"
#include "app/console/OddFolders.h"
#include "app/console/Report.h"
#include "app/console/Store.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

// What could not be saved. After a wash in the midst of the program it is tried again at the end.
std::optional<PcError> saved(ConsolePc& pc) {
  try {
    pc.save();
    pc.saveChanges(false, {});
  } catch (const PcError& failure) {
    return failure;
  }
  return std::nullopt;
}

// Runs the program from its start to the end of the process.
int runProgram(CommandContext& context, const std::function<void(Program&)>& afterStart) {
  context.pc.needWashable();
  context.needAlone();
  for (const std::string& folder : oddFolders(*context.pc.platform().registry)) {
    context.tell(context.pc.toTerminal(folder));
  }
  interrupt::watch();
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
  if (!context.loop.interrupted()) needStoreSaved(program.engine.pc, program.options);
  const int status = tellLeftBehind(context, program, "could not be removed");
  return context.loop.interrupted() ? interrupt::status() : status;
}

}  // namespace

int washCommand(CommandContext& context) {
  return runProgram(context, [](Program& program) { program.main.cmdRemove_Click(); });
}

void checkStart(const Given& given) {
  for (const std::string& argument : given.arguments) {
    if (argument != "/STARTUP" && argument != "/SCHEDULER") {
      throw UsageError("start takes /STARTUP and /SCHEDULER, not \"" + argument + "\"");
    }
  }
}

int startCommand(CommandContext& context) {
  return runProgram(context, [](Program&) {});
}

}  // namespace zub
