#include "app/PreviewText.h"
#include "app/console/Commands.h"
#include "app/console/Json.h"
#include "app/console/Report.h"
#include "app/console/Terminal.h"
#include "app/console/WashChoice.h"

namespace zub {
namespace {

std::string_view nameOf(Preview::Kind kind) {
  switch (kind) {
    case Preview::Kind::File:
      return "file";
    case Preview::Kind::Folder:
      return "folder";
    case Preview::Kind::Key:
      return "key";
    default:
      return "value";
  }
}

void printList(const CommandContext& context, Preview& preview) {
  preview.each([&](Preview::Kind kind, const std::string& path, const std::string& valueName) {
    if (kind == Preview::Kind::Value) return context.printRow({nameOf(kind), path, valueName});
    context.printRow({nameOf(kind), path});
  });
}

void printJson(const CommandContext& context, Preview& preview) {
  const Preview::Sums sums = preview.sums();
  Json json(context, "preview");
  json.number("files", sums.files);
  json.number("bytes", sums.bytes);
  json.number("folders", sums.folders);
  json.number("keys", sums.keys);
  json.number("values", sums.values);
  json.array("foundNothing", [&] {
    for (const std::string& name : sums.foundNothing) json.text("", name);
  });
  if (context.given.has("--list")) {
    json.array("things", [&] {
      preview.each([&](Preview::Kind kind, const std::string& path, const std::string& valueName) {
        json.object([&] {
          json.utf8("kind", nameOf(kind));
          json.text("path", path);
          if (kind == Preview::Kind::Value) json.text("name", valueName);
        });
      });
    });
  }
  addReport(json, context, preview.program);
  json.write();
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
  if (context.given.has("--json")) {
    printJson(context, preview);
  } else if (list) {
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
