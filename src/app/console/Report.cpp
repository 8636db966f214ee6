#include "app/console/Report.h"

#include <string>

namespace zub {
namespace {

// The report lies in memory with CR LF; a terminal wants neither CR nor a blank line at its end.
std::string withoutCarriageReturns(std::string text) {
  std::erase(text, '\r');
  while (text.ends_with('\n')) text.pop_back();
  return text;
}

}  // namespace

void printReport(const CommandContext& context, Program& program) {
  if (program.engine.clean.txtResult.empty()) return;
  context.print(withoutCarriageReturns(program.engine.clean.txtResult));
  const frmAnimated::State& shown = program.engine.animated.peek().state;
  context.print("");
  context.print(shown.lblRemove.Caption);
  context.print(shown.StatusBar1[1]);
  context.print(program.options.lblLastRemoval.Caption);
}

int tellLeftBehind(const CommandContext& context, const Program& program, std::string_view happened) {
  if (program.engine.leftBehind == 0) return exitStatus::Done;
  context.tell(std::to_string(program.engine.leftBehind) + " files, folders or keys " +
               std::string(happened));
  return exitStatus::LeftBehind;
}

}  // namespace zub
