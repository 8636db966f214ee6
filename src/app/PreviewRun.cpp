#include "app/PreviewRun.h"

#include "app/PreviewText.h"
#include "base/Text.h"

namespace zub {
namespace {

// A message that a wash would show is a line of the report.
struct MessageLines : Messages {
  frmClean* report = nullptr;

  void show(std::string_view prompt, int, std::string_view title) override {
    std::string line = joined({"\tA message would say: ", title, ": "});
    while (!prompt.empty()) line += joined({trim(takeLine(prompt)), " "});
    line.pop_back();
    report->AddItem(std::move(line));
  }
};

std::string textOf(Preview& preview) {
  const Engine& engine = preview.program.engine;
  std::string text = joined({PreviewHeading, CrLf, CrLf, engine.clean.txtResult, CrLf});
  for (const LeftBehind& left : engine.leftBehind) {
    text += joined({left.unread ? "Not looked into: " : "Would stay: ", left.what, ": ", left.why, CrLf});
  }
  for (const std::string& line : closingLines(preview.sums())) text += joined({line, CrLf});
  return text;
}

}  // namespace

void runPreview(Program& program) {
  frmPreview& window = program.main.preview;
  Platform beneath = program.engine.pc;
  MessageLines messages;
  Preview preview(beneath, *beneath.events, messages);
  messages.report = &preview.program.engine.clean;
  preview.takeOver(program);
  const unsigned run = window.begin();
  const AutoLoad<frmAnimated>& wash = preview.program.engine.animated;
  const bool whole = preview.wash([&] {
    if (!window.goesOn(run)) return true;
    window.follow(wash.peek().state);
    return false;
  });
  window.end();
  if (whole) window.tell(textOf(preview));
}

}  // namespace zub
