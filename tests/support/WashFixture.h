// A test PC with everything that a wash needs but the cleaners.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/Engine.h"
#include "support/TestPc.h"

namespace zub {

// The main window of the wash: records what it is told.
struct FakeOwner : WashOwner {
  std::vector<std::string> calls;

  void Enable() override { calls.emplace_back("Enable"); }
  void FinishedCleaning() override { calls.emplace_back("FinishedCleaning"); }
  void Unload() override { throw EndOfProcess{}; }
};

struct WashFixture {
  TestPc pc;
  Options options;
  FakeOwner owner;
  Engine engine;

  explicit WashFixture(std::vector<std::string> facts = {})
      : pc(std::move(facts)), engine(pc.platform(), options) {
    engine.owner = &owner;
  }

  frmAnimated::State& progress() { return engine.animated->state; }
  // The report so far, which then is empty.
  std::string takeReport() { return std::exchange(engine.clean.txtResult, {}); }
  // The pop-ups so far, each as "TITLE: PROMPT;", which then are forgotten.
  std::string told() {
    std::string all;
    for (const TestPc::Message& message : std::exchange(pc.messages, {})) {
      all += message.title + (message.style == 0 ? "" : ", style " + std::to_string(message.style)) + ": " +
             message.prompt + ";";
    }
    return all;
  }
  void cleaner(Task task, Handler run) {
    engine.clean.cleaners.builtIn[static_cast<std::size_t>(task)] = std::move(run);
    options.LstIcons.Check(rowOf(task).iconRow, 1);
  }
};

// The rows of a list, the ticked ones with "*" in front.
inline std::string rowsOf(const ListRows& rows) {
  std::string text;
  for (int row = 0; row < rows.ListCount(); ++row) {
    text += (rows.Selected(row) ? "*" : "") + rows.List(row) + ";";
  }
  return text;
}

// The marks of a list's rows, "*" for a ticked one.
inline std::string ticksOf(const ListRows& rows) {
  std::string marks;
  for (int row = 0; row < rows.ListCount(); ++row) marks += rows.Selected(row) ? '*' : '-';
  return marks;
}

// The lines of a diff that are no removals of something whose line names one of `expected`: what a wash did beyond
// that.
inline std::string beyond(std::string_view diff, const std::vector<std::string>& expected) {
  std::string lines;
  while (!diff.empty()) {
    const std::string_view line = diff.substr(0, diff.find('\n'));
    diff.remove_prefix(std::min(diff.size(), line.size() + 1));
    const bool named = std::ranges::any_of(
        expected, [&](const std::string& part) { return line.find(part) != std::string_view::npos; });
    if (!line.starts_with("- ") || !named) lines.append(line) += '\n';
  }
  return lines;
}

}  // namespace zub
