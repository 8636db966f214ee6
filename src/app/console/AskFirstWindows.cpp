#include <cstdio>

#include "app/PreviewText.h"
#include "app/console/AskFirst.h"
#include "app/console/Json.h"
#include "app/console/Report.h"
#include "app/console/Terminal.h"
#include "base/Text.h"
#include "platform/win32/Win32Console.h"

namespace zub {
namespace {

// Shows the question, and reads the line that answers it; empty where none comes.
std::string ask(std::string_view question) {
  terminal::flush(terminal::Stream::Output);
  terminal::write(terminal::Stream::Errors, question);
  terminal::flush(terminal::Stream::Errors);
  std::string answer;
  for (int c = std::fgetc(stdin); c != EOF && c != '\n'; c = std::fgetc(stdin)) {
    answer += static_cast<char>(c);
  }
  return upperAscii(trim(answer));
}

void tellNothingRemoved(const CommandContext& context) {
  if (!context.given.has("--json")) return context.print("Nothing has been removed.");
  Json json(context, "wash");
  json.flag("washed", false);
  json.write();
}

}  // namespace

bool washWanted(CommandContext& context, const WashChoice& choice) {
  if (!context.pc.folder().empty() || context.given.has("--yes")) return true;
  if (!console::isConsole(console::Stream::Input) || !terminal::isTerminal(terminal::Stream::Errors)) {
    throw Refusal("nobody can be asked here: wash this PC with --yes");
  }
  Preview preview(context.pc.platform(), context.loop, context.loop);
  {
    const Attached attached(context.loop, preview.program);
    preview.program.start();
    WashChoice(choice).apply(preview.program);
    preview.wash();
  }
  const std::string answer = ask("Remove " + sumsText(preview.sums()) + "? [y/N] ");
  const bool wanted = answer == "Y" || answer == "YES";
  if (!wanted) tellNothingRemoved(context);
  return wanted;
}

}  // namespace zub
