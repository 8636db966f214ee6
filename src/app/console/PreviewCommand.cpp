#include "app/Preview.h"
#include "app/console/Commands.h"
#include "app/console/Report.h"

namespace zub {
namespace {

std::string counted(std::int64_t count, const char* one, const char* several) {
  return std::to_string(count) + ' ' + (count == 1 ? one : several);
}

void printSums(const CommandContext& context, const Preview::Sums& sums) {
  context.print("");
  context.print("Would go: " + counted(sums.files, "file", "files") + " of " +
                counted(sums.bytes, "byte", "bytes") + ", " + counted(sums.folders, "folder", "folders") +
                ", " + counted(sums.keys, "registry key", "registry keys") + ", " +
                counted(sums.values, "value", "values"));
  std::string nothing;
  for (const std::string& name : sums.foundNothing) nothing += (nothing.empty() ? "" : ", ") + name;
  if (!nothing.empty()) context.print("Nothing to remove for: " + nothing);
  context.print("Nothing has been removed.");
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

int previewCommand(CommandContext& context) {
  const bool list = context.given.has("--list");
  context.pc.needWashable();
  Preview preview(context.pc.platform(), context.loop, context.loop);
  Program& program = preview.program;
  {
    const Attached attached(context.loop, program);
    program.start();
    preview.wash();
  }
  if (list) {
    printList(context, preview);
  } else {
    context.print("PREVIEW: nothing has been removed. A wash would report:");
    context.print("");
    printReport(context, program);
    printSums(context, preview.sums());
  }
  return tellLeftBehind(context, program, "would stay");
}

}  // namespace zub
