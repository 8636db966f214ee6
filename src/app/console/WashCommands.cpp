#include <functional>
#include <optional>

#include "app/PreviewText.h"
#include "app/Program.h"
#include "app/console/Commands.h"
#include "app/console/Interrupt.h"
#include "app/console/Report.h"
#include "app/console/Store.h"
#include "app/console/Terminal.h"
#include "app/console/WashChoice.h"
#include "base/Text.h"
#include "platform/folder/HostText.h"
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

// A file of this machine.
void saveReport(const std::string& path, const std::string& report) {
  const auto end = path.find_last_of("/\\") + 1;
  const auto folder = openHostDir(end == 0 ? "." : path.substr(0, end));
  if (!folder) throw std::runtime_error(path + ": its folder cannot be opened");
  replaceHostText(*folder, path.substr(end), report);
}

// On the PC that this runs on somebody is asked once, with the sums of a preview.
bool agreed(CommandContext& context, WashChoice choice) {
  if (!context.pc.folder().empty() || context.given.has("--yes")) return true;
  if (!terminal::canAsk()) throw Refusal("nobody can be asked here: wash this PC with --yes");
  Preview preview(context.pc.platform(), context.loop, context.loop);
  {
    const Attached attached(context.loop, preview.program);
    preview.program.start();
    choice.apply(preview.program);
    preview.wash();
  }
  const std::string answer = terminal::ask("Remove " + sumsText(preview.sums()) + "? [y/N] ");
  return upperAscii(answer) == "Y" || upperAscii(answer) == "YES";
}

// Runs the program from its start to the end of the process.
int runProgram(CommandContext& context, WashChoice& choice, const std::function<void(Program&)>& afterStart) {
  context.pc.needWashable();
  context.pc.needWritable();
  context.needAlone();
  tellOddFolders(context);
  if (context.given.has("--quiet")) context.loop.showNoProgress();
  interrupt::watch();
  Program program(context.pc.platform());
  program.engine.clean.cleaners.ended = [&] {
    choice.restore(program.options);
    saved(context.pc);
  };
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
  const std::string report = reportText(context, program);
  if (!context.given.has("--quiet")) terminal::write(terminal::Stream::Output, report);
  if (context.given.has("--report")) saveReport(context.pc.utf8(context.given.valueOf("--report")), report);
  if (unsaved) throw *unsaved;
  if (!context.loop.interrupted()) needStoreSaved(program.engine.pc, program.options);
  const int status = tellLeftBehind(context, program, "could not be removed");
  return context.loop.interrupted() ? interrupt::status() : status;
}

}  // namespace

void checkWash(const Given& given) {
  if (!given.arguments.empty()) throw UsageError("wash takes no arguments");
  const WashChoice choice(given);
}

int washCommand(CommandContext& context) {
  context.needAlone();
  WashChoice choice(context.given);
  if (!agreed(context, choice)) {
    context.print("Nothing has been removed.");
    return exitStatus::Done;
  }
  return runProgram(context, choice, [&choice](Program& program) {
    choice.apply(program);
    program.main.cmdRemove_Click();
  });
}

void checkStart(const Given& given) {
  for (const std::string& argument : given.arguments) {
    if (argument != "/STARTUP" && argument != "/SCHEDULER") {
      throw UsageError("start takes /STARTUP and /SCHEDULER, not \"" + argument + "\"");
    }
  }
}

int startCommand(CommandContext& context) {
  WashChoice all({});
  return runProgram(context, all, [](Program&) {});
}

}  // namespace zub
