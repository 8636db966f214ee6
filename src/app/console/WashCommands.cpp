#include <exception>
#include <functional>

#include "app/Program.h"
#include "app/console/AskFirst.h"
#include "app/console/Commands.h"
#include "app/console/Interrupt.h"
#include "app/console/Json.h"
#include "app/console/Report.h"
#include "app/console/Store.h"
#include "app/console/Terminal.h"
#include "base/RuntimeError.h"
#include "platform/folder/HostText.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

void save(ConsolePc& pc) {
  pc.save();
  pc.saveChanges(false, {});
}

// A file of this machine.
void saveReport(const std::string& path, const std::string& report) {
  const auto end = path.find_last_of("/\\") + 1;
  const auto folder = openHostDir(end == 0 ? "." : path.substr(0, end));
  if (!folder) throw std::runtime_error(path + ": its folder cannot be opened");
  replaceHostText(*folder, path.substr(end), report);
}

void printWash(const CommandContext& context, Program& program, const std::exception_ptr& failure) {
  if (!context.given.has("--json")) {
    if (!context.given.has("--quiet"))
      terminal::write(terminal::Stream::Output, reportText(context, program));
    return;
  }
  Json json(context, "wash");
  json.flag("washed", true);
  json.flag("interrupted", context.loop.interrupted());
  json.number("bytes", program.engine.TotalBytes);
  json.text("lastRemoval", program.options.lblLastRemoval.Caption);
  addReport(json, context, program);
  try {
    if (failure) std::rethrow_exception(failure);
  } catch (...) {
    json.text("error", textOfFailure());
  }
  json.write();
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
    try {
      save(context.pc);
    } catch (const PcError&) {
      // It is tried again at the end.
    }
  };
  // What was done is saved and told, whatever fails.
  std::exception_ptr failure;
  const auto tried = [&failure](const std::function<void()>& work) {
    try {
      work();
    } catch (const Refusal&) {
      throw;  // before anything was done
    } catch (const EndOfProcess&) {
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  };
  tried([&] {
    const Attached attached(context.loop, program);
    program.start();
    afterStart(program);
    if (program.engine.animated.loaded()) program.engine.animated->cmdFinish_Click();
    program.main.Unload();
  });
  tried([&] { save(context.pc); });
  tried([&] {
    if (context.given.has("--report"))
      saveReport(context.pc.utf8(context.given.valueOf("--report")), reportText(context, program));
  });
  tried([&] {
    if (!context.loop.interrupted()) needStoreSaved(program.engine.pc, program.options);
  });
  printWash(context, program, failure);
  const int status = tellLeftBehind(context, program, "could not be removed");
  if (failure) std::rethrow_exception(failure);
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
  if (!washWanted(context, choice)) return exitStatus::Done;
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
