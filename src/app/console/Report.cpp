#include "app/console/Report.h"

#include <string>

#include "app/console/OddFolders.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace zub {
namespace {

// The report lies in memory with CR LF behind each line; a terminal wants no blank line at its end.
std::string linesOf(const CommandContext& context, std::string_view text) {
  text = trimRight(text, CrLf);
  std::string lines;
  while (!text.empty()) lines += context.pc.toTerminal(takeLine(text)) + "\n";
  return lines;
}

}  // namespace

std::string reportText(const CommandContext& context, Program& program) {
  if (program.engine.clean.txtResult.empty()) return {};
  const std::string report = linesOf(context, program.engine.clean.txtResult) + "\n";
  if (context.loop.interrupted()) {
    const std::string restored = groupedThousands(program.engine.TotalBytes);
    return report +
           "The wash was interrupted. Space restored so far: " + (restored.empty() ? "0" : restored) +
           " Bytes\n";
  }
  const frmAnimated::State& shown = program.engine.animated.peek().state;
  return report + context.pc.toTerminal(shown.lblRemove.Caption) + "\n" +
         context.pc.toTerminal(shown.StatusBar1[1]) + "\n" +
         context.pc.toTerminal(program.options.lblLastRemoval.Caption) + "\n";
}

void addReport(Json& json, const CommandContext& context, const Program& program) {
  std::string_view report = trimRight(program.engine.clean.txtResult, CrLf);
  json.array("report", [&] {
    while (!report.empty()) json.text("", takeLine(report));
  });
  json.array("left", [&] {
    for (const LeftBehind& entry : program.engine.leftBehind) {
      json.object([&] {
        json.text("what", entry.what);
        json.text("why", entry.why);
        json.flag("unread", entry.unread);
      });
    }
  });
  json.array("failures", [&] {
    for (const std::string& failure : context.pc.failures()) json.utf8("", failure);
  });
}

void tellOddFolders(const CommandContext& context) {
  for (const std::string& folder : oddFolders(*context.pc.platform().registry)) {
    context.tell(context.pc.toTerminal(folder));
  }
}

int tellLeftBehind(const CommandContext& context, const Program& program, std::string_view happened) {
  const std::vector<LeftBehind>& left = program.engine.leftBehind;
  if (left.empty()) return exitStatus::Done;
  for (const LeftBehind& entry : left) {
    // A PC in a folder tells by itself what could not be looked into.
    if (entry.unread && !context.pc.folder().empty()) continue;
    context.tell(context.pc.toTerminal(
        joined({entry.unread ? "not looked into: " : "", entry.what, ": ", entry.why})));
  }
  context.tell(std::to_string(left.size()) + " files, folders or keys " + std::string(happened));
  return exitStatus::LeftBehind;
}

}  // namespace zub
