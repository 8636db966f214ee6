#include "app/PreviewText.h"
#include "app/console/Commands.h"
#include "app/console/Report.h"
#include "app/console/Terminal.h"
#include "app/console/WashChoice.h"

namespace zub {
namespace {

void printList(const CommandContext& context, Preview& preview) {
  preview.each([&](Preview::Kind kind, const std::string& path, const std::string& valueName) {
    switch (kind) {
      case Preview::Kind::File:
        return context.printRow({"file", path});
      case Preview::Kind::Folder:
        return context.printRow({"folder", path});
      case Preview::Kind::Key:
        return context.printRow({"key", path});
      case Preview::Kind::Value:
        return context.printRow({"value", path, valueName});
    }
  });
}

}  // namespace

void checkPreview(const Given& given) {
  if (!given.arguments.empty()) throw UsageError("preview takes no arguments");
  const WashChoice choice(given);
}

int previewCommand(CommandContext& context) {
  const bool list = context.given.has("--list");
  context.pc.needWashable();
  tellOddFolders(context);
  Preview preview(context.pc.platform(), context.loop, context.loop);
  Program& program = preview.program;
  {
    const Attached attached(context.loop, program);
    program.start();
    WashChoice(context.given).apply(program);
    preview.wash();
  }
  if (list) {
    printList(context, preview);
  } else {
    context.print(PreviewHeading);
    context.print("");
    terminal::write(terminal::Stream::Output, reportText(context, program));
    context.print("");
    for (const std::string& line : closingLines(preview.sums())) context.print(line);
  }
  return tellLeftBehind(context, program, "would stay");
}

}  // namespace zub
