#include "app/Preview.h"
#include "app/console/Commands.h"
#include "app/console/Report.h"
#include "app/console/Terminal.h"
#include "app/console/WashChoice.h"

namespace zub {
namespace {

void printSums(const CommandContext& context, const Preview::Sums& sums) {
  context.print("");
  context.print("Would go: " + sumsText(sums));
  std::string nothing;
  for (const std::string& name : sums.foundNothing) nothing += (nothing.empty() ? "" : ", ") + name;
  if (!nothing.empty()) context.print("Nothing to remove for: " + nothing);
  context.print(
      "Nothing has been removed. What other programs open, write or remove until the wash is not foretold.");
}

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
    context.print("PREVIEW: nothing has been removed. A wash would report:");
    context.print("");
    terminal::write(terminal::Stream::Output, reportText(context, program));
    printSums(context, preview.sums());
  }
  return tellLeftBehind(context, program, "would stay");
}

}  // namespace zub
