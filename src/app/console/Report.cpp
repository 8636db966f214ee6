#include "app/console/Report.h"

#include <string>

#include "base/Numbers.h"
#include "base/Text.h"

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

}  // namespace

void printReport(const CommandContext& context, Program& program) {
  if (program.engine.clean.txtResult.empty()) return;
  printLines(context, program.engine.clean.txtResult);
  const frmAnimated::State& shown = program.engine.animated.peek().state;
  context.print("");
  if (context.loop.interrupted()) {
    const std::string restored = groupedThousands(program.engine.TotalBytes);
    context.print("The wash was interrupted. Space restored so far: " + (restored.empty() ? "0" : restored) +
                  " Bytes");
    return;
  }
  context.print(shown.lblRemove.Caption);
  context.print(shown.StatusBar1[1]);
  context.print(program.options.lblLastRemoval.Caption);
}

int tellLeftBehind(const CommandContext& context, const Program& program, std::string_view happened) {
  // A PC in a folder tells by itself what could not be looked into.
  if (context.pc.folder().empty()) {
    for (const std::string& folder : program.engine.unread) context.tell("not looked into: " + folder);
  }
  if (program.engine.leftBehind == 0) return exitStatus::Done;
  context.tell(std::to_string(program.engine.leftBehind) + " files, folders or keys " +
               std::string(happened));
  return exitStatus::LeftBehind;
}

}  // namespace zub
